#pragma once

// Comes before everything else: this compiler of Objective-C++ takes `id` for its own type where this header
// of Qt means a member.
#define id m_identifier
#include <QtCore/qbasictimer.h>
#undef id
