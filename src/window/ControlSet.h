#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "window/Control.h"
#include "window/Template.h"

// Learns of every change of a control set, after it has happened. Called only when a value really differs,
// except for Focus, which is reported each time it is given.
class CControlObserver {
  public:
    virtual ~CControlObserver() = default;
    virtual void OnControlChanged(const CControl& control, EControlChange change) = 0;
};

// The controls of one dialog by their ids. An id that the dialog does not have is passed over by every
// operation, as the platform does with a control that is not there.
class CControlSet {
  public:
    explicit CControlSet(std::span<const CControlTemplate> arrTemplate,
                         std::span<const CControlLookRow> arrLooks = {});

    const std::vector<CControl>& All() const { return m_arrControls; }
    // Null if there is no such control.
    const CControl* Find(int nId) const;

    bool IsShown(int nId) const;
    bool IsEnabled(int nId) const;
    bool IsChecked(int nId) const;
    std::string Text(int nId) const;
    int Position(int nId) const;
    int Selection(int nId) const;
    int Focus() const { return m_nFocus; }

    void Show(int nId, bool bShow);
    void Show(std::span<const int> arrIds, bool bShow);
    void Enable(int nId, bool bEnable);
    void Check(int nId, bool bCheck);
    void SetText(int nId, const std::string& strText);
    void Move(int nId, const CRect& rcPlace);
    void SetRange(int nId, int nMin, int nMax);
    // Limited to the range.
    void SetPosition(int nId, int nPos);
    void SetItems(int nId, std::vector<CListItem> arrItems);
    void Select(int nId, int nRow);
    // A control that is hidden or disabled does not take the focus and leaves it where it is.
    void SetFocus(int nId);

    // At most one observer; null to detach. Must outlive its attachment.
    void Attach(CControlObserver* pObserver) { m_pObserver = pObserver; }

  private:
    CControl* Get(int nId);
    void Changed(const CControl& control, EControlChange change);
    template <typename T>
    void Set(int nId, T CControl::*pField, T value, EControlChange change);

    std::vector<CControl> m_arrControls;
    std::unordered_map<int, std::size_t> m_mapIndex;
    int m_nFocus = 0;
    CControlObserver* m_pObserver = nullptr;
};
