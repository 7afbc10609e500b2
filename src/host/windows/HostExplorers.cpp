#include "host/windows/HostExplorers.h"

#include "base/Failure.h"

#include <cstddef>

namespace tempodial {

Ref<Explorer> HostExplorers::Item(std::int32_t index)
{
    if (index < 1 || index > Count()) {
        throw Failure(Error::SubscriptOutOfRange);
    }
    return mOpen[static_cast<std::size_t>(index) - 1];
}

void HostExplorers::Add(const Ref<HostExplorer>& explorer)
{
    mOpen.push_back(explorer);
    mByRecency.push_back(explorer);
}

void HostExplorers::Activate(const Ref<HostExplorer>& explorer)
{
    if (std::erase(mByRecency, explorer) > 0) {
        mByRecency.push_back(explorer);
    }
}

void HostExplorers::Close(const Ref<HostExplorer>& explorer)
{
    // The reference may be one of those that are taken out.
    const auto closed = explorer; // NOLINT(performance-unnecessary-copy-initialization)
    std::erase(mOpen, closed);
    std::erase(mByRecency, closed);
    closed->MarkGone();
}

Ref<HostExplorer> HostExplorers::Active() const
{
    return mByRecency.empty() ? nullptr : mByRecency.back();
}

}
