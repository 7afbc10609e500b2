const {Gio, GLib} = imports.gi;

