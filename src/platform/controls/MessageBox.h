#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// The buttons of a message box, and the answers.
enum class Answer { Ok, Yes, No, Cancel };

/// The picture of a message box.
enum class MessageIcon { None, Question, Exclamation };

/// Shows a message and waits for the answer, letting other events in meanwhile.
class MessageBox
{
public:
    virtual ~MessageBox() = default;

    /// The button that the user chose; the first one is the default.
    virtual Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon) = 0;
};

}
