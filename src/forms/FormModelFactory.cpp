#include "forms/FormModelFactory.h"

namespace tempodial {

Ref<Form> FormModelFactory::Create(const FormDefinition& definition)
{
    const auto form = std::make_shared<FormModel>(definition, ++mLastNumber);
    std::erase_if(mForms, [](const auto& known) { return known.expired(); });
    mForms.push_back(form);
    mEvents.Raise(&FormModelFactoryEvents::Created, *form);
    return Ref<FormModel>(form);
}

std::vector<Ref<FormModel>> FormModelFactory::Forms() const
{
    std::vector<Ref<FormModel>> forms;
    for (const auto& known : mForms) {
        if (auto form = known.lock()) {
            forms.emplace_back(std::move(form));
        }
    }
    return forms;
}

void FormModelFactory::CloseAll() const
{
    for (const auto& form : Forms()) {
        if (form->Visible()) {
            form->CloseForGood();
        }
    }
}

Ref<FormModel> FormModelFactory::NewestVisible(std::string_view className) const
{
    Ref<FormModel> newest;
    for (const auto& form : Forms()) {
        if (form->Visible() && form->Definition().className == className) {
            newest = form;
        }
    }
    return newest;
}

}
