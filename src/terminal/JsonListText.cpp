#include "terminal/JsonListText.h"

#include "base/Text.h"

#include <utility>

namespace tempodial {

void JsonListText::Append(const JsonValue& entry)
{
    // Line feeds stand between the parts of a document alone; in texts they are escaped.
    mText += (mText.size() == 1 ? "\n  " : ",\n  ") + Replace(entry.Text(), "\n", "\n  ");
}

std::string JsonListText::Take()
{
    mText += mText.size() == 1 ? "]" : "\n]";
    return std::exchange(mText, "[");
}

}
