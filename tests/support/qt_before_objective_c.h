#pragma once

// Comes before everything else: this compiler of Objective-C++ takes `id` for its own type where these
// headers of Qt mean a member or a parameter.
#define id m_identifier
#include <QtCore/qbasictimer.h>
#include <QtCore/qcoreevent.h>
#undef id
