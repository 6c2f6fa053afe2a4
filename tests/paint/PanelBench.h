#pragma once

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "paint/ToolController.h"
#include "resources/MainDialog.h"
#include "support/Pictures.h"

// The tool controller in a window that is nothing but its client area, over a canvas that only remembers what
// it was asked.
class PanelBench : public testing::Test,
                   private CToolCanvas,
                   private CToolHost,
                   private CEditEvents,
                   private CPanelHost,
                   private CColorDialogs,
                   private CTextRasterizer,
                   private CBitmaps {
  protected:
    static constexpr CRect kPanel{168, 344, 243, 421};

    PanelBench()
        : m_controls(kMainDialog.arrControls),
          m_client({1014, 710}),
          m_controller({m_state, m_tools, m_controls, *this, *this, *this, *this, *this, *this}) {
        SetDensity(1);
        m_state.m_bImageOpen = true;
        m_state.m_nMode = EMode::Draw;
    }
    void SetDensity(int nDensity) { m_client.SetUp(this, nDensity); }

    // What was asked of canvas and window since the last call.
    std::string TakeCalls() { return std::exchange(m_strCalls, {}); }
    // A press in the panel, counted from its corner.
    bool PressPanel(int x, int y) { return m_controller.OnPanelPress({kPanel.left + x, kPanel.top + y}); }
    void DoubleClick(CPoint pt, EMouseButton button) {
        m_controller.OnWellDoubleClick({EMouseAction::DoubleClick, button, pt, 0});
    }
    // What has been brought to the screen.
    CColor At(int x, int y) const { return m_shown.GetPixel(x, y); }

    CEditState m_state;
    CToolState m_tools;
    CControlSet m_controls;
    CClientArea m_client;
    CToolController m_controller;
    // What the canvas is in.
    bool m_bShapeOpen = false;
    std::optional<CColor> m_answer;
    std::vector<CColor> m_arrAsked;
    std::vector<CTextFont> m_arrFonts;

    // The clouds of the airbrush, each in a flat colour of its own.
    static CColor ColorOfBitmap(int nResource) { return {static_cast<std::uint8_t>(nResource), 7, 9}; }

  private:
    void Call(const char* szCall) { m_strCalls.append(m_strCalls.empty() ? "" : " ").append(szCall); }

    bool IsShapeOpen() const override { return m_bShapeOpen; }
    void AbandonShape() override {
        m_bShapeOpen = false;
        Call("abandon");
    }
    void Revert() override { Call("revert"); }
    void ForgetSelection() override { Call("forget"); }
    bool IsFloating() const override { return false; }
    bool PrepareDrop() override { return true; }
    void DropFloat() override {}
    void ApplyZoom() override { Call(("zoom" + std::to_string(m_tools.m_nZoom)).c_str()); }

    CClientArea& Client() override { return m_client; }
    void Present() override { m_shown = m_client.Surface(); }
    void Invalidate() override { Call("repaint"); }
    void SetHelp(int nCode) override { Call(("help" + std::to_string(nCode)).c_str()); }
    void Tell(EEditEvent event) override { Call(event == EEditEvent::SelectionGone ? "off" : "on"); }

    std::optional<CColor> Run(CColor colorStart) override {
        m_arrAsked.push_back(colorStart);
        return m_answer;
    }
    // All ink, half as wide as high.
    CTextMask Rasterize(const CTextFont& font, const std::string& strText) override {
        m_arrFonts.push_back(font);
        CTextMask mask{static_cast<int>(strText.size()) * font.nHeight / 2, font.nHeight, {}};
        mask.coverage.assign(static_cast<std::size_t>(mask.nWidth) * static_cast<std::size_t>(mask.nHeight),
                             255);
        return mask;
    }
    const CxImage* Find(const std::string& strName, int nDensity) override {
        auto [it, bNew] = m_mapBitmaps.try_emplace(strName + "@" + std::to_string(nDensity));
        const CSize size = strName == "175" ? CSize{67, 19} : CSize{70, 21};
        if (bNew)
            it->second = FlatImage(size.cx * nDensity, size.cy * nDensity, ColorOfBitmap(std::stoi(strName)));
        return &it->second;
    }

    CSurface m_shown{0, 0};
    std::string m_strCalls;
    std::map<std::string, CxImage> m_mapBitmaps;
};
