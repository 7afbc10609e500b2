
export default class TempodialExtension extends Extension {
    enable() {
        this._windows = new Windows();
        this._windows.enable();
    }

    disable() {
        this._windows.disable();
        this._windows = null;
    }
}
