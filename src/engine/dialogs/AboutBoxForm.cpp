#include "engine/dialogs/AboutBoxForm.h"

#include "platform/controls/Button.h"
#include "platform/controls/Label.h"

#include <utility>

namespace tempodial {

namespace {

FormDefinition AboutBoxDefinition()
{
    using enum ControlKind;
    return { .className = "AboutBoxForm",
        .title = "About",
        .rows = {
            { { "About", Label, "Tempodial v1" } },
            { { "Copyright", Label, "Copyright \u00a9 2026 the Tempodial developers" } },
            { { "Label1", Label,
                "Warning: this program is protected by copyright law. It may be copied and passed on only as its "
                "licence allows." } },
            { { .name = "OK", .kind = Button, .text = "OK", .role = ButtonRole::Default } },
        } };
}

}

AboutBoxForm::AboutBoxForm(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
    const auto attempt = Failing("", LineShape::Silent);
    attempt([&] { mForm = mPlatform->forms->Create(AboutBoxDefinition()); });
    attempt([&] {
        mOKEvents = mForm->Control("OK").As<Button>()->Subscribe({ .Click = [form = mForm] { form->Hide(); } });
    });
}

void AboutBoxForm::ShowMe(const std::string& version, const std::string& name)
{
    const auto attempt = Failing("", LineShape::Silent);
    attempt([&] { mForm->Control("About").As<Label>()->SetCaption(name + " " + version); });
    attempt([&] { mForm->Show(); });
}

void AboutBoxForm::Unload()
{
    Failing("", LineShape::Silent)([&] { mForm->Unload(); });
}

}
