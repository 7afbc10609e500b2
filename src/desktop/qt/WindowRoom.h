#pragma once

class QWidget;

namespace tempodial {

/// Makes a window as large as its words need in its font, as far as the screen goes; a larger one stays. The toolkit
/// opens windows at two thirds of the screen at most, and doesn't ask how high wrapped words are.
void GiveRoom(QWidget& window);

/// How many times as high as desktops usually have them the letters of a widget are; at least 1.
double LetterScale(const QWidget& widget);

}
