#include "engine/core/Connect.h"

#include "engine/core/TempodialMain.h"

namespace tempodial {

namespace {

/// Runs a statement and drops its failure: nothing may reach the host.
template <class Statement> void Guarded(Statement&& statement) noexcept
{
    try {
        statement();
    } catch (...) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace

Connect::Connect(Ref<const Platform> platform)
    : mPlatform(std::move(platform))
{
}

void Connect::OnConnection(const Ref<Application>& application, const std::string& progID)
{
    std::int32_t explorers = 0;
    std::int32_t inspectors = 0;
    Guarded([&] { explorers = application->Explorers()->Count(); });
    Guarded([&] { inspectors = application->Inspectors()->Count(); });
    if (explorers == 0 && inspectors == 0) {
        return;
    }
    Guarded([&] {
        mMain = MakeRef<TempodialMain>(mPlatform);
        mMain->Initialize(progID, application);
    });
}

void Connect::OnDisconnection()
{
    Guarded([&] {
        if (!mMain) {
            mMain = MakeRef<TempodialMain>(mPlatform);
        }
        mMain->Terminate();
    });
    mMain = nullptr;
}

} // namespace tempodial
