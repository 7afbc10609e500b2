#pragma once

#include "forms/FormHands.h"
#include "wire/WireValue.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// A person at forms that the other end has: asks for what `DoFormRequest` does there.
class AskedForms final : public FormHands
{
public:
    /// Asks the other end by a word and arguments.
    using Asker = std::function<WireValue(const std::string& word, const std::vector<WireValue>& arguments)>;

    explicit AskedForms(Asker ask)
        : mAsk(std::move(ask))
    {
    }

    std::vector<FormSnapshot> Forms() override;
    void Type(const FormKey& form, const std::string& control, const std::string& text) override;
    void Choose(const FormKey& form, const std::string& control, const EntryKey& entry) override;
    void Check(const FormKey& form, const std::string& control, bool checked) override;
    void Click(const FormKey& form, const std::string& control) override;
    bool Close(const FormKey& form) override;

private:
    Asker mAsk;
};

}
