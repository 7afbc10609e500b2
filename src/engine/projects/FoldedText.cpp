#include "engine/projects/FoldedText.h"

#include "base/Text.h"

namespace tempodial {

FoldedText::FoldedText(std::string_view text)
    : mText(Fold(text))
{
    for (std::size_t index = 1; index < mText.size(); ++index) {
        mPairs.set(Pair(mText[index - 1], mText[index]));
    }
}

}
