#include "driver/remote/FaceMembers.h"
#include "driver/remote/WindowsPath.h"
#include "platform/objectmodel/Application.h"
#include "platform/objectmodel/NameSpace.h"

namespace tempodial {

namespace {

constexpr std::int32_t MapiLogonCompleteEvent = 0xFA90;
constexpr std::int32_t QuitEvent = 0xF007;
constexpr std::int32_t MailItemKind = 0;

WireValue CreateMail(Application& application, const FaceCall& call)
{
    if (call.Take<std::int32_t>(0) != MailItemKind) {
        throw Failure(Error::InvalidCall);
    }
    return call.Give(application.CreateItem());
}

WireValue CreateFromTemplate(Application& application, const FaceCall& call)
{
    return call.Give(
        application.CreateItemFromTemplate(FromWindowsPath(call.Take<std::string>(0)), call.Take<Ref<MAPIFolder>>(1)));
}

}

template <> const FaceClass<Application>& FaceOf()
{
    using Members = FaceMembers<Application>;
    static const FaceClass<Application> face { "Application",
        { { "Version", Members::Property(&Application::Version) },
            { "Explorers", Members::Property(&Application::Explorers) },
            { "Inspectors", Members::Property(&Application::Inspectors) },
            { "GetNamespace", Members::Method(&Application::GetNamespace) },
            { "ActiveExplorer", Members::Method(&Application::ActiveExplorer) },
            { "ActiveInspector", Members::Method(&Application::ActiveInspector) }, { "CreateItem", CreateMail },
            { "CreateItemFromTemplate", CreateFromTemplate } },
        [](const Ref<Application>& application, const FaceRaiser& raise) {
            return application->Subscribe({ .MapiLogonComplete = [raise] { raise.Plain(MapiLogonCompleteEvent); },
                .Quit = [raise] { raise.Plain(QuitEvent); } });
        } };
    return face;
}

template <> const FaceClass<NameSpace>& FaceOf()
{
    using Members = FaceMembers<NameSpace>;
    static const FaceClass<NameSpace> face { "NameSpace",
        { { "GetDefaultFolder", Members::Method(&NameSpace::GetDefaultFolder) },
            { "Folders", Members::Property(&NameSpace::Folders) } } };
    return face;
}

}
