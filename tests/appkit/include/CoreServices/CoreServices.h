#pragma once

// Simulated macOS: the event that a second start of a program becomes.
#include <cstdint>

typedef std::uint32_t AEEventClass;
typedef std::uint32_t AEEventID;

enum { kCoreEventClass = 0x61657674 };      // 'aevt'
enum { kAEReopenApplication = 0x72617070 }; // 'rapp'
