#pragma once

#include <sys/resource.h>

#include <csignal>

// From here to its end no file grows above nBytes: a full disk, for root too.
class CFullDisk {
  public:
    explicit CFullDisk(rlim_t nBytes) : m_pOld(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limit{nBytes, m_old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    CFullDisk(const CFullDisk&) = delete;
    CFullDisk& operator=(const CFullDisk&) = delete;
    ~CFullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_pOld);
    }

  private:
    rlimit m_old{};
    void (*m_pOld)(int);
};
