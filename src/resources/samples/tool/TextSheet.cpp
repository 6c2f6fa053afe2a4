#include "TextSheet.h"

#include <Magick++.h>

#include <cstdint>
#include <exception>

namespace {

// Everything of Magick++ reports by exceptions; they end here.
bool Print(int nWidth, int nHeight, const std::vector<CTextSheet::CLine>& lines,
           std::vector<std::uint8_t>& grey) {
    try {
        Magick::Image image(
            Magick::Geometry(static_cast<std::size_t>(nWidth), static_cast<std::size_t>(nHeight)),
            Magick::Color("white"));
        image.font("Noto-Serif-CJK-SC");
        image.fillColor(Magick::Color("black"));
        for (const CTextSheet::CLine& line : lines) {
            image.fontPointsize(line.nSize);
            int x = line.x;
            if (line.bCentred) {
                Magick::TypeMetric metric;
                image.fontTypeMetrics(line.strText, &metric);
                x -= static_cast<int>(metric.textWidth() / 2);
            }
            Magick::Geometry place(0, 0, x, line.nBase);
            image.annotate(line.strText, place, Magick::NorthWestGravity, 0);
        }
        grey.resize(static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight));
        image.write(0, 0, static_cast<std::size_t>(nWidth), static_cast<std::size_t>(nHeight), "I",
                    Magick::CharPixel, grey.data());
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

CTextSheet::CTextSheet(int nWidth, int nHeight, const std::vector<CLine>& lines)
    : m_nWidth(nWidth), m_nHeight(nHeight) {
    std::vector<std::uint8_t> grey;
    m_ink.assign(static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight), 0.0F);
    if (!Print(nWidth, nHeight, lines, grey)) return;
    for (std::size_t i = 0; i < grey.size(); ++i) m_ink[i] = 1 - static_cast<float>(grey[i]) / 255;
}

float CTextSheet::InkAt(float u, float v) const {
    const float x = u * static_cast<float>(m_nWidth) - 0.5F;
    const float y = v * static_cast<float>(m_nHeight) - 0.5F;
    if (x < 0 || y < 0 || x >= static_cast<float>(m_nWidth - 1) || y >= static_cast<float>(m_nHeight - 1))
        return 0;
    const int nX = static_cast<int>(x);
    const int nY = static_cast<int>(y);
    const auto at = [&](int i, int j) {
        return m_ink[static_cast<std::size_t>(nY + j) * static_cast<std::size_t>(m_nWidth) +
                     static_cast<std::size_t>(nX + i)];
    };
    const float fx = x - static_cast<float>(nX);
    return Mix(Mix(at(0, 0), at(1, 0), fx), Mix(at(0, 1), at(1, 1), fx), y - static_cast<float>(nY));
}
