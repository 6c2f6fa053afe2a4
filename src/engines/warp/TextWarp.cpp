#include "engines/warp/TextWarp.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>
#include <vector>

#include "engines/warp/Blend.h"
#include "engines/warp/MeshWarp.h"
#include "engines/warp/ProjectMask.h"
#include "engines/warp/ScaleMask.h"
#include "engines/warp/TextEffects.h"

namespace {

// The part of a box that lies in the picture, in pixels of the box; empty if there is none. A box may be
// anywhere and of any size.
CRect VisibleOf(int x, int y, int nWidth, int nHeight, const CPixels& picture) {
    const auto first = [](int nPlace) { return std::max<std::int64_t>(0, -std::int64_t{nPlace}); };
    const auto end = [](int nPlace, int nSize, int nPicture) {
        return std::min<std::int64_t>(nSize, std::int64_t{nPicture} - nPlace);
    };
    const std::int64_t nLeft = first(x);
    const std::int64_t nTop = first(y);
    const std::int64_t nRight = end(x, nWidth, picture.Width());
    const std::int64_t nBottom = end(y, nHeight, picture.Height());
    if (nRight <= nLeft || nBottom <= nTop) return {};
    return {static_cast<int>(nLeft), static_cast<int>(nTop), static_cast<int>(nRight),
            static_cast<int>(nBottom)};
}

// The mask with its effect: the mask itself, or bytes that are made for it.
CConstGreyView WithEffect(CConstGreyView mask, int nEffect, std::vector<std::uint8_t>& bytes) {
    const auto effect = nEffect == kTextShaded     ? ShadeText
                        : nEffect == kTextOutlined ? OutlineText
                        : nEffect == kTextReversed ? ReverseText
                                                   : nullptr;
    if (effect == nullptr) return mask;
    bytes.resize(mask.Size() + CSharedBytes::kSlack);
    effect(mask, {bytes.data(), mask.nWidth, mask.nHeight});
    return {bytes.data(), mask.nWidth, mask.nHeight};
}

CColor ColourOf(const TextArtParam& param) {
    return {param.byRed, param.byGreen, param.byBlue};
}

}  // namespace

void CTextWarp::SetBase(CPixels base) {
    m_base = std::move(base);
    m_out = m_base;
}

bool CTextWarp::SetMask(std::span<const std::uint8_t> bytes, int nWidth, int nHeight) {
    if (nWidth <= 0 || nHeight <= 0) {
        ClearMask();
        return true;
    }
    const std::size_t nSize = static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight);
    CSharedBytes mask;
    if (bytes.size() < nSize || !mask.Allocate(nSize)) return false;
    std::memcpy(mask.MutableData(), bytes.data(), nSize);
    m_mask = std::move(mask);
    m_sizeMask = {nWidth, nHeight};
    return true;
}

void CTextWarp::ClearMask() {
    m_mask.Clear();
    m_sizeMask = {};
    m_out = m_base;
}

bool CTextWarp::Render(const TextArtParam& param) {
    if (!HasBase() || !HasMask()) return false;
    CPixels out = m_base;
    try {
        std::vector<std::uint8_t> bytes;
        const CConstGreyView mask =
            WithEffect({m_mask.Data(), m_sizeMask.cx, m_sizeMask.cy}, param.nTextEffect, bytes);
        const auto render = param.nWarpKind == kWarpMesh ? RenderMesh : RenderProjection;
        if (!render(param, mask, out)) return false;
    } catch (const std::bad_alloc&) {
        return false;
    }
    m_out = std::move(out);
    return true;
}

bool CTextWarp::RenderProjection(const TextArtParam& param, CConstGreyView mask, CPixels& out) {
    const CRect rc = VisibleOf(param.nBoxX, param.nBoxY, param.nBoxWidth, param.nBoxHeight, out);
    if (rc.IsEmpty()) return true;
    // Row by row, so that no plane of the box's size is needed.
    const CProjection projection(mask, param.fQuad, rc.left, rc.Width());
    std::vector<std::uint8_t> row(static_cast<std::size_t>(rc.Width()));
    if (!out.Separate()) return false;
    const CPixelView view = out.MutableView();
    for (int y = rc.top; y < rc.bottom; ++y) {
        projection.Row(y, row.data());
        std::uint8_t* const pPixels = view.Row(param.nBoxY + y) + 3 * std::ptrdiff_t{param.nBoxX + rc.left};
        BlendRow(row.data(), ColourOf(param), pPixels, row.size());
    }
    return true;
}

bool CTextWarp::RenderMesh(const TextArtParam& param, CConstGreyView mask, CPixels& out) {
    const CRect rc = VisibleOf(param.nMeshX, param.nMeshY, param.nMeshWidth, param.nMeshHeight, out);
    if (rc.IsEmpty() || !HasSplines(param)) return true;
    CSharedBytes bytes;
    const std::size_t nSize =
        static_cast<std::size_t>(param.nMeshWidth) * static_cast<std::size_t>(param.nMeshHeight);
    if (!CSharedBytes::Fits(nSize + MeshWarpMemory(param.nMeshWidth, param.nMeshHeight)) ||
        !bytes.Allocate(nSize))
        return false;
    const CGreyView plane{bytes.MutableData(), param.nMeshWidth, param.nMeshHeight};
    ScaleMask(mask, plane);
    MeshWarp(param, plane);
    if (!out.Separate()) return false;
    const CPixelView view = out.MutableView();
    for (int y = rc.top; y < rc.bottom; ++y) {
        std::uint8_t* const pPixels = view.Row(param.nMeshY + y) + 3 * std::ptrdiff_t{param.nMeshX + rc.left};
        BlendRow(plane.Row(y) + rc.left, ColourOf(param), pPixels, static_cast<std::size_t>(rc.Width()));
    }
    return true;
}
