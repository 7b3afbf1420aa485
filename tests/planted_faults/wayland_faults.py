"""Faults in the bar on Wayland."""

from planting import Fault

CONNECTION = "src/shell/wayland/wayland_connection.cpp"
STRIP = "src/shell/wayland/wayland_strip.cpp"
SURFACE = "src/shell/wayland/strip_surface.cpp"
BUFFERS = "src/shell/wayland/double_buffer.cpp"
SCALE = "src/shell/wayland/surface_scale.cpp"
OUTPUT = "src/shell/wayland/wayland_output.cpp"
POINTER = "src/shell/wayland/pointer_input.cpp"
TOUCH = "src/shell/wayland/touch_input.cpp"
CATCHER = "src/shell/wayland/press_catcher.cpp"
RETRY = "src/shell/wayland/retry_delay.cpp"
ROLE = "src/shell/wayland/layer_role.cpp"
INSTANCE = "src/shell/painted/runtime_instance.cpp"
LINES = "src/shell/painted/request_lines.cpp"
TEST = "test_wayland"
WINDOWS_TEST = "test_wayland_windows"

WAYLAND_FAULTS = [
    Fault("the strip reserves no space", SURFACE,
          "zwlr_layer_surface_v1_set_exclusive_zone(m_layerSurface.get(), barHeightPoints);", "",
          TEST, "StripSurfaceTest.IsADock*"),
    Fault("the strip is painted again at every configuration", SURFACE,
          "if (std::exchange(m_size, size) != size)", "m_size = size;", TEST, "StripPictureTest.IsNotPaintedAgain*"),
    Fault("an impossible width is taken", SURFACE, "if (width == 0 || width > largestWidth)",
          "if (width == 0)", TEST, "StripSurfaceTest.IgnoresAnImpossible*"),
    Fault("everything is painted for a change", SURFACE,
          "const QRegion region = m_pending & QRect(QPoint(0, 0), m_size);",
          "const QRegion region = QRect(QPoint(0, 0), m_size);", TEST, "StripPictureTest.RepaintsOnly*"),
    Fault("the strip is not painted when a buffer is released", SURFACE,
          "connect(&m_buffers, &DoubleBuffer::freed, this, &StripSurface::repaintPending);", "",
          TEST, "StripPictureTest.WaitsForABuffer*"),
    Fault("damage is told in points where pixels are meant", SURFACE, "for (const QRect& changed : pixels)",
          "for (const QRect& changed : region)", TEST, "StripPictureTest.DamageIsToldInPixels*"),
    Fault("the second buffer misses earlier changes", BUFFERS, "copyStale(*side);", "static_cast<void>(0);",
          TEST, "StripPictureTest.IsWholeInEachBuffer*"),
    Fault("a buffer is painted while the compositor reads it", BUFFERS, "return !side.buffer->isInUse();",
          "return true;", TEST, "StripPictureTest.WaitsForABuffer*"),
    Fault("the picture of a fraction has no viewport", SCALE,
          "wp_viewport_set_destination(m_viewport.get(), points.width(), points.height());", "static_cast<void>(0);",
          TEST, "StripPictureTest.IsCrispAtAFraction"),
    Fault("a preferred scale of 0 is taken", SCALE,
          "if (pixelsPerPoint < smallestScale || pixelsPerPoint > largestFraction)", "if (pixelsPerPoint < 0)",
          TEST, "StripPictureTest.IgnoresAScale*"),
    Fault("sizes that contradict the scale are believed", OUTPUT,
          "return std::ceil(scale) == wholeScale ? scale : wholeScale;", "return scale;", TEST, "ScreenScaleTest.*"),
    Fault("the first version of a screen is never known", OUTPUT,
          "if (wl_output_get_version(m_output.get()) < WL_OUTPUT_DONE_SINCE_VERSION)", "if (m_scale > 99)",
          TEST, "OldCompositorTest.ShowsTheBar*"),
    Fault("a closed strip comes back at once", RETRY, "return std::exchange(m_next, std::min(m_next * 2, longest));",
          "return {};", TEST, "StripOutputsTest.TakesItsTime*"),
    Fault("a closed strip insists on its screen", STRIP, "m_refusing = &m_surface->output();", "",
          TEST, "StripOutputsTest.TriesAnotherScreen*"),
    Fault("the strip of an empty bar stays", STRIP, "if (bar().isEmpty() || output", "if (output",
          TEST, "StripSurfaceTest.ShowsNothingWithoutItems*"),
    Fault("the cursor keeps its first scale", STRIP, "m_cursor.setScale(output->scale());", "static_cast<void>(0);",
          TEST, "StripInputTest.TheCursorHas*"),
    Fault("a press lasts when the pointer leaves", POINTER, "Q_EMIT m_target->cancelled();", "static_cast<void>(0);",
          TEST, "StripInputTest.APressIsTakenBackWhenThePointerLeaves"),
    Fault("a finger that stays is a left click", TOUCH, "Q_EMIT target->pressed(m_position, Qt::RightButton);",
          "Q_EMIT target->pressed(m_position, Qt::LeftButton);", TEST, "StripInputTest.AFingerThatStays*"),
    Fault("a finger that moves away stays", TOUCH, "> steadyDistance", "> 10'000",
          TEST, "StripInputTest.AFingerThatMoves*"),
    Fault("every finger counts", TOUCH, "    if (m_finger)\n        return;\n", "",
          TEST, "StripInputTest.OnlyTheFirstFinger*"),
    Fault("presses are heard on the strip's screen across panels", CATCHER,
          "hasStrip ? besidePanels : acrossPanels", "acrossPanels", TEST, "PressCatcherTest.LeavesTheStrip*"),
    Fault("a screen that comes later is not covered", CATCHER,
          "connect(&outputs, &WaylandOutputs::changed, this, &PressCatcher::cover);", "",
          TEST, "PressCatcherTest.FollowsScreens*"),
    Fault("a lost connection is watched for ever", CONNECTION,
          "    // A closed socket is readable for ever.\n    m_readable.setEnabled(false);\n", "",
          TEST, "ConnectionTest.IsLostOnce*"),
    Fault("what a full socket did not take is forgotten", CONNECTION, "m_writable.setEnabled(error == EAGAIN);", "",
          TEST, "WaylandConnectionTest.SendsTheRest*"),
    Fault("a broken rule is not named", CONNECTION, "if (error != EPROTO)", "if (error != 0)",
          TEST, "ConnectionTest.NamesTheRule*"),
    Fault("a panel is painted before the compositor has answered", ROLE,
          "if (!m_shell.waitUntil([this] { return m_isConfigured || m_surface == nullptr; }, configurePatience))",
          "if (m_isConfigured = true; false)", WINDOWS_TEST),
    Fault("a panel keeps the keyboard to itself", ROLE,
          "if (m_keyboard != LayerKeyboard::takes || !m_window.isActive() || !m_shell.hasKeyboardOnDemand())",
          "if (true)", WINDOWS_TEST),
    Fault("a window that hides keeps its role", ROLE, "if (!visible)\n            giveUpRole();",
          "static_cast<void>(visible);", WINDOWS_TEST),
    Fault("another start does not tell the first", INSTANCE, "startRequestText(request) + '\\n'",
          "QByteArray()", "test_shell"),
    Fault("a second start asks for no more than to be noticed", INSTANCE, "startRequestText(request) + '\\n'",
          "QByteArray(1, '\\n')", "test_shell", "RuntimeInstance*"),
    Fault("a pipe without a reader counts as a running program", INSTANCE,
          "openExistingPipe(QFile::encodeName(file), O_WRONLY)",
          "openExistingPipe(QFile::encodeName(file), O_RDWR)", "test_shell", "RuntimeInstance*"),
    Fault("a flood asks again and again", LINES, "if (requests.empty() || requests.back() != request)", "if (true)",
          "test_shell", "RequestLines*"),
    Fault("a line is taken for the request that it begins with", LINES, "if (m_begun.size() <= longestStartRequest)",
          "if (m_begun.size() < longestStartRequest)", "test_shell", "RequestLines*"),
]
