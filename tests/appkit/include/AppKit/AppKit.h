#pragma once

// Simulated macOS: the classes of AppKit that the shell uses, with the calls that it makes.
#include <AppKit/NSAppearance.h>
#include <AppKit/NSApplication.h>
#include <AppKit/NSFont.h>
#include <AppKit/NSImage.h>
#include <AppKit/NSPopover.h>
#include <AppKit/NSResponder.h>
#include <AppKit/NSStatusBar.h>
#include <AppKit/NSView.h>
#include <AppKit/NSWindow.h>
