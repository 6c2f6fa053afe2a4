#pragma once

struct CDate {
    int nYear = 0;
    int nMonth = 0;  // 1..12
    int nDay = 0;    // 1..31
    bool operator==(const CDate&) const = default;
};

class CClock {
  public:
    virtual ~CClock() = default;
    // Today's local date.
    virtual CDate Today() = 0;
};
