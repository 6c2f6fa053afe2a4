#pragma once

#include <cstdint>
#include <span>

#include "engines/warp/GreyView.h"
#include "engines/warp/TextArtParam.h"
#include "image/Geometry.h"
#include "image/Pixels.h"
#include "image/SharedBytes.h"

// Lays a warped text over a picture: a base picture, a grey mask of the text, and a record that says how to
// warp and colour it give a new picture. It knows neither fonts nor the screen. Every rendering starts from
// the base, so the next one replaces the text of the last. One thread.
//
// Base and result share their pixels with whoever gave or took them; giving, taking and a text that touches
// no pixel cost nothing.
class CTextWarp {
  public:
    // Takes another base; the result is that base until something is rendered. Empty pixels take the base
    // away.
    void SetBase(CPixels base);

    // Copies a mask of nWidth by nHeight pixels: a byte a pixel, the top row first, 0 full ink, 255 none. A
    // side that is not above 0 takes the mask away, as ClearMask does. False, and the old mask stays, if
    // there are fewer bytes than that or if memory is short.
    [[nodiscard]] bool SetMask(std::span<const std::uint8_t> bytes, int nWidth, int nHeight);

    // No mask until the next one is set; the result is the base without words.
    void ClearMask();

    bool HasBase() const { return !m_base.IsEmpty(); }
    bool HasMask() const { return !m_mask.IsEmpty(); }

    // Renders. False, and the result of the last call stays, if base or mask is missing (HasBase and HasMask
    // tell) or if memory is short. Nothing in the record makes it fail otherwise: what lies outside the
    // picture is left out, and corners or a mesh that do not say where to lay the text leave the base as it
    // is.
    [[nodiscard]] bool Render(const TextArtParam& param);

    // The size of base and result; 0 without a base.
    int GetWidth() const { return m_base.Width(); }
    int GetHeight() const { return m_base.Height(); }

    // The base with the text of the last rendering, if there was one; empty without a base.
    const CPixels& Result() const { return m_out; }

  private:
    // Either draws into out, a copy of the base. mask is the one with its effect.
    [[nodiscard]] static bool RenderProjection(const TextArtParam& param, CConstGreyView mask, CPixels& out);
    [[nodiscard]] static bool RenderMesh(const TextArtParam& param, CConstGreyView mask, CPixels& out);

    CPixels m_base;
    CPixels m_out;
    CSharedBytes m_mask;
    CSize m_sizeMask;
};
