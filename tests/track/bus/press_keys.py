"""Presses a key of GNOME's session again and again, until it is ended."""

import time

import dbus

SHIFT = 42

bus = dbus.SessionBus()
desktop = bus.get_object("org.gnome.Mutter.RemoteDesktop", "/org/gnome/Mutter/RemoteDesktop")
path = desktop.CreateSession(dbus_interface="org.gnome.Mutter.RemoteDesktop")
session = dbus.Interface(bus.get_object("org.gnome.Mutter.RemoteDesktop", path), "org.gnome.Mutter.RemoteDesktop.Session")
session.Start()
while True:
    for isDown in (True, False):
        session.NotifyKeyboardKeycode(dbus.UInt32(SHIFT), isDown)
    time.sleep(0.1)
