#pragma once

#include <signal.h>
#include <sys/resource.h>

// Files can grow no further than this as long as the object lives, as on a full disk.
class CFullDisk {
  public:
    explicit CFullDisk(rlim_t nBytes) {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_limits);
        const rlimit limits{nBytes, m_limits.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limits);
    }
    ~CFullDisk() { setrlimit(RLIMIT_FSIZE, &m_limits); }
    CFullDisk(const CFullDisk&) = delete;
    CFullDisk& operator=(const CFullDisk&) = delete;

  private:
    rlimit m_limits{};
};
