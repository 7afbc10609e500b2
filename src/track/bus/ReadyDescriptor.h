#pragma once

#include <sys/epoll.h>
#include <unistd.h>

namespace tempodial {

/// A descriptor that is readable when one of others is.
class ReadyDescriptor
{
public:
    ReadyDescriptor()
        : mDescriptor(::epoll_create1(EPOLL_CLOEXEC))
    {
    }
    ~ReadyDescriptor() { ::close(mDescriptor); }
    ReadyDescriptor(const ReadyDescriptor&) = delete;
    ReadyDescriptor& operator=(const ReadyDescriptor&) = delete;

    int Get() const { return mDescriptor; }
    void Add(int descriptor) const
    {
        epoll_event event {};
        event.events = EPOLLIN;
        ::epoll_ctl(mDescriptor, EPOLL_CTL_ADD, descriptor, &event);
    }

private:
    int mDescriptor;
};

}
