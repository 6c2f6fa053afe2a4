#pragma once

// The picture that runs in a dialog while the phone is waited for, as a step of a flow sees it.
class CRunningPicture {
  public:
    virtual ~CRunningPicture() = default;
    // It stands still from here on.
    virtual void StopPicture() = 0;
};
