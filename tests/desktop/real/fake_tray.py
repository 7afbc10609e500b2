"""A tray: it takes the icons that programs bring to the session's bus, and shows them to nobody."""

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.kde.StatusNotifierWatcher"


class Tray(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(dbus.service.BusName(NAME, bus), "/StatusNotifierWatcher")

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s", path_keyword="object_path",
                         connection_keyword="connection")
    def Introspect(self, object_path, connection):
        """Toolkits ask for no property that isn't told of here."""
        head = f'<interface name="{NAME}">'
        told = '<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>'
        return super().Introspect(object_path, connection).replace(head, head + told)

    @dbus.service.method(NAME, in_signature="s")
    def RegisterStatusNotifierItem(self, service):
        self.StatusNotifierItemRegistered(service)

    @dbus.service.method(NAME, in_signature="s")
    def RegisterStatusNotifierHost(self, service):
        pass

    @dbus.service.signal(NAME, signature="s")
    def StatusNotifierItemRegistered(self, service):
        pass

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return self.GetAll(interface)[name]

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, interface):
        return {"IsStatusNotifierHostRegistered": True, "ProtocolVersion": dbus.Int32(0),
                "RegisteredStatusNotifierItems": dbus.Array([], signature="s")}


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
tray = Tray(dbus.SessionBus())
GLib.MainLoop().run()
