#include "wire/forms/AskedForms.h"

#include "wire/forms/FormWire.h"

namespace tempodial {

std::vector<FormSnapshot> AskedForms::Forms()
{
    return FormsFromWire(mAsk("forms", {}));
}

void AskedForms::Type(const FormKey& form, const std::string& control, const std::string& text)
{
    mAsk("form.type", { ToWire(form), WireValue::Text(control), WireValue::Text(text) });
}

void AskedForms::Choose(const FormKey& form, const std::string& control, const EntryKey& entry)
{
    mAsk("form.choose", { ToWire(form), WireValue::Text(control), ToWire(entry) });
}

void AskedForms::Check(const FormKey& form, const std::string& control, bool checked)
{
    mAsk("form.check", { ToWire(form), WireValue::Text(control), WireValue::Flag(checked) });
}

void AskedForms::Click(const FormKey& form, const std::string& control)
{
    mAsk("form.click", { ToWire(form), WireValue::Text(control) });
}

bool AskedForms::Close(const FormKey& form)
{
    return mAsk("form.close", { ToWire(form) }).number != 0;
}

}
