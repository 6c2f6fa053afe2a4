#pragma once

// PRINT: the preview on a sheet and the printed page.
class CPrintFlow {
  public:
    void OnPrint() {}
};
