
/* exported init */
function init() {
    return new Windows();
}
