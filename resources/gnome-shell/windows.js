// What both forms of the extension share: it tells the window in front on the session's message bus, where Tempodial's
// recorder asks for it, and each change of it or of its title. Nothing is kept and nothing else is told.

const WINDOWS_INTERFACE = `<node><interface name="org.tempodial.Windows">
    <method name="Get">
        <arg type="s" direction="out" name="program"/>
        <arg type="s" direction="out" name="title"/>
        <arg type="x" direction="out" name="process"/>
    </method>
    <signal name="Changed">
        <arg type="s" name="program"/>
        <arg type="s" name="title"/>
        <arg type="x" name="process"/>
    </signal>
</interface></node>`;

class Windows {
    enable() {
        this._object = Gio.DBusExportedObject.wrapJSObject(WINDOWS_INTERFACE, this);
        this._object.export(Gio.DBus.session, '/org/tempodial/Windows');
        this._focus = global.display.connect('notify::focus-window', () => this._follow());
        this._follow();
    }

    disable() {
        global.display.disconnect(this._focus);
        this._follow(null);
        this._object.unexport();
        this._object = null;
    }

    Get() {
        const window = this._window;
        return window ? [window.get_wm_class() || '', window.get_title() || '', window.get_pid()] : ['', '', 0];
    }

    _follow(window = global.display.focus_window) {
        if (this._window)
            this._window.disconnect(this._title);
        this._window = window;
        if (window)
            this._title = window.connect('notify::title', () => this._tell());
        this._tell();
    }

    _tell() {
        this._object.emit_signal('Changed', new GLib.Variant('(ssx)', this.Get()));
    }
}
