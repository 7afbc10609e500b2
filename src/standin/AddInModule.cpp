#include "standin/AddInModule.h"

#include "addin/base/SystemText.h"
#include "standin/ImportHooks.h"
#include "wire/Answer.h"
#include "wire/WireFailure.h"

#include <bit>
#include <string_view>

namespace tempodial {

namespace {

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
using CanUnloadNow = HRESULT(STDAPICALLTYPE*)();
using RigAttach = void (*)(const RigLink*);

void RequireDone(HRESULT result, const char* what)
{
    if (FAILED(result)) {
        throw WireFailure(
            WireFailure::Refused, std::string(what) + " failed with the result " + std::to_string(result));
    }
}

/// An answer without the length in front.
std::string AnswerTo(Conversation& host, std::string bytes)
{
    FrameReader request(std::move(bytes));
    FrameWriter asked(static_cast<FrameType>(request.Byte()));
    const auto word = request.Text();
    asked.Text(word).Values(request.Values());
    return AnswerOf([&] { return host.Ask(asked); }).WithoutLength();
}

}

AddInModule::AddInModule(const std::string& path, Conversation& host)
    : mModule(LoadLibraryW(Wide(path).c_str()))
    , mLink { &AskHost, &host }
{
    if (mModule == nullptr) {
        throw WireFailure(WireFailure::Refused,
            "the add-in's module " + path + " can't be loaded, error " + std::to_string(GetLastError()));
    }
    // The module that is installed knows nothing of tests.
    if (IsForTests()) {
        Find<RigAttach>(RigAttachName)(&mLink);
    } else {
        ImportHooks::Set(mModule, host);
    }
    ComRef<IClassFactory> factory;
    RequireDone(Find<GetClassObject>("DllGetClassObject")(AddInClass, IID_IClassFactory, factory.PutAny()),
        "asking for the add-in's class");
    RequireDone(factory->CreateInstance(nullptr, __uuidof(IDTExtensibility2), mAddIn.PutAny()), "making the add-in");
}

AddInModule::~AddInModule()
{
    mAddIn.Clear();
    FreeLibrary(mModule);
}

template <class Function> Function AddInModule::Find(const char* name) const
{
    const auto found = GetProcAddress(mModule, name);
    if (found == nullptr) {
        throw WireFailure(WireFailure::Refused, std::string("the add-in's module has no ") + name);
    }
    return std::bit_cast<Function>(found);
}

void AddInModule::Connect(const ComRef<IDispatch>& application)
{
    RequireDone(mAddIn->OnConnection(application.Get(), ConnectAtStartup, nullptr, nullptr), "connecting");
}

void AddInModule::CompleteStartup()
{
    RequireDone(mAddIn->OnAddInsUpdate(nullptr), "telling of add-ins");
    RequireDone(mAddIn->OnStartupComplete(nullptr), "completing the start");
}

bool AddInModule::Disconnect()
{
    RequireDone(mAddIn->OnBeginShutdown(nullptr), "beginning the shut-down");
    RequireDone(mAddIn->OnDisconnection(DisconnectAtShutdown, nullptr), "disconnecting");
    mAddIn.Clear();
    return Find<CanUnloadNow>("DllCanUnloadNow")() == S_OK;
}

WireValue AddInModule::Do(const std::string& word, const std::vector<WireValue>& arguments)
{
    FrameWriter request(FrameType::Do);
    const auto bytes = request.Text(word).Values(arguments).WithoutLength();
    std::string reply;
    Find<RigRequest>(RigDoName)(
        nullptr, bytes.data(), bytes.size(),
        [](void* context, const char* data, std::size_t size) {
            static_cast<std::string*>(context)->assign(data, size);
        },
        &reply);
    FrameReader answer(std::move(reply));
    const auto type = static_cast<FrameType>(answer.Byte());
    return ValueOfAnswer(type, answer);
}

void AddInModule::AskHost(void* end, const char* bytes, std::size_t size, RigReply reply, void* context)
{
    try {
        const auto answer = AnswerTo(*static_cast<Conversation*>(end), std::string(bytes, size));
        reply(context, answer.data(), answer.size());
    } catch (...) {
        // The host is gone, and nothing may pass into the module.
        constexpr UINT HostGone = 3;
        ExitProcess(HostGone);
    }
}

}
