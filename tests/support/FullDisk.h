#pragma once

#ifndef _WIN32
#include <csignal>

#include <sys/resource.h>
#endif

namespace zerna {

#ifdef _WIN32

/// No disk can be made small there: tests that need one are not run.
class FullDisk {
public:
    explicit FullDisk(int) { }
};

#else

/// While it lives no file can grow beyond a few bytes, for root neither: writing fails half way as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit tiny{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tiny);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

#endif

} // namespace zerna
