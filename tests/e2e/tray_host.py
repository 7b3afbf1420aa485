"""A tray: tells programs that icons are shown, and asks each new icon for all that it has, as trays do.

tray_host.py: prints `tray` when it is there, and `icon TITLE` for each icon. Ends with the session bus.
"""
from gi.repository import Gio, GLib

WATCHER = """<node><interface name="org.kde.StatusNotifierWatcher">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
<signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
<signal name="StatusNotifierHostRegistered"/>
</interface></node>"""
PROPERTIES = {"RegisteredStatusNotifierItems": GLib.Variant("as", []),
              "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
              "ProtocolVersion": GLib.Variant("i", 0)}


def show(bus, name, path):
    """Asks the icon at a path of a program for its properties."""
    def tell(connection, result):
        values = connection.call_finish(result).unpack()[0]
        print("icon", values["Title"], flush=True)
    bus.call(name, path, "org.freedesktop.DBus.Properties", "GetAll",
             GLib.Variant("(s)", ("org.kde.StatusNotifierItem",)), None, Gio.DBusCallFlags.NONE, -1, None, tell)


def answer(bus, sender, _path, _interface, method, arguments, invocation):
    """Answers a call: the argument is a path, or the name of a program with an icon at the usual path."""
    invocation.return_value(None)
    if method == "RegisterStatusNotifierItem":
        service = arguments.unpack()[0]
        show(bus, sender, service if service.startswith("/") else "/StatusNotifierItem")


def main():
    """Runs until the bus goes."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    interface = Gio.DBusNodeInfo.new_for_xml(WATCHER).interfaces[0]
    bus.register_object("/StatusNotifierWatcher", interface, answer,
                        lambda _bus, _sender, _path, _interface, name: PROPERTIES[name], None)
    Gio.bus_own_name_on_connection(bus, "org.kde.StatusNotifierWatcher", Gio.BusNameOwnerFlags.NONE,
                                   lambda *_: print("tray", flush=True), None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
