"""Services of a desktop for a program that tries what happens when they die: a tray, and the portal of settings.

Usage: desktop_services.py [tray] [portal]

Prints "ready", "registered NAME" for each icon, and "asked" for each question about settings, each in a line.
"""

import sys

from gi.repository import Gio, GLib

TRAY = """<node><interface name="org.kde.StatusNotifierWatcher">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
</interface></node>"""

PORTAL = """<node><interface name="org.freedesktop.portal.Settings">
<method name="ReadAll"><arg type="as" direction="in"/><arg type="a{sa{sv}}" direction="out"/></method>
</interface></node>"""

SETTINGS = {"org.gnome.desktop.interface": {"font-name": GLib.Variant("s", "DejaVu Serif 10")}}


def say(line):
    print(line, flush=True)


def serve(bus, name, path, description, answer):
    node = Gio.DBusNodeInfo.new_for_xml(description)
    properties = {"IsStatusNotifierHostRegistered": GLib.Variant("b", True), "ProtocolVersion": GLib.Variant("i", 0)}
    bus.register_object(path, node.interfaces[0],
                        lambda _bus, _sender, _path, _interface, method, values, call: answer(method, values, call),
                        lambda _bus, _sender, _path, _interface, asked: properties[asked], None)
    Gio.bus_own_name_on_connection(bus, name, Gio.BusNameOwnerFlags.NONE, None, None)


def answer_icon(_method, values, call):
    say(f"registered {values.unpack()[0]}")
    call.return_value(None)


def answer_settings(_method, _values, call):
    say("asked")
    call.return_value(GLib.Variant("(a{sa{sv}})", (SETTINGS,)))


def main():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    bus.set_exit_on_close(False)
    if "tray" in sys.argv:
        serve(bus, "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher", TRAY, answer_icon)
    if "portal" in sys.argv:
        serve(bus, "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", PORTAL, answer_settings)
    bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetId", None, None,
                  Gio.DBusCallFlags.NONE, -1) # the names have been taken by then
    say("ready")
    GLib.MainLoop().run()


main()
