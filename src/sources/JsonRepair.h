#pragma once

#include <cstddef>
#include <streambuf>
#include <string>

namespace tempodial {

/// A JSON document as it goes by, with what a strict parser refuses a whole export for brought into order: in texts
/// halves of surrogate pairs, bytes that are no letter and controls are left out and a backslash that escapes nothing
/// stands for itself; NaN, infinities and numbers beyond all become null. What is cut off stays so.
class JsonRepair final : public std::streambuf
{
public:
    explicit JsonRepair(std::streambuf& source)
        : mSource(source)
    {
    }

protected:
    int_type underflow() override;

private:
    /// Reads on, and keeps what wasn't taken yet.
    void Read();
    /// Takes what stands next, outside of texts and in one.
    void TakeOutside();
    void TakeInText();
    void TakeEscape();
    /// A number or a word is over.
    void EndWord();

    std::streambuf& mSource;
    std::string mIn;
    std::size_t mAt = 0;
    bool mIsAtEnd = false;
    std::string mOut;
    /// The number or the word in hand.
    std::string mWord;
    bool mIsInText = false;
};

}
