#pragma once

// What the tool controller asks of the window that its panel stands in.
class CToolHost {
  public:
    virtual ~CToolHost() = default;
    // The help line takes the text of the code.
    virtual void SetHelp(int nCode) = 0;
};
