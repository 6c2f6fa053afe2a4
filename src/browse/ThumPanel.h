#pragma once

#include <string>

// THUM: the folder tree and the file list beside it.
class CThumPanel {
  public:
    // The left button is down in the file list.
    bool IsPressed() const { return m_bPressed; }
    void ForgetPress() { m_bPressed = false; }

    // Opens and selects the tree's current item and reads the list anew.
    void ReturnToFolder() {}
    // Lets tree and list follow the folder into which a file was saved.
    void FollowFolder(const std::string& /*strFolder*/) {}

  private:
    bool m_bPressed = false;
};
