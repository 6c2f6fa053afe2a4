#include "surface/figures/Figures.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace {

constexpr CColor kWhite{255, 255, 255};
constexpr CColor kPen{0, 0, 0};
constexpr CColor kBrush{0, 160, 0};

char LetterOf(CColor color) {
    if (color == kPen) return 'P';
    return color == kBrush ? 'B' : '.';
}

CColor ColorOf(char ch) {
    if (ch == 'P') return kPen;
    return ch == 'B' ? kBrush : kWhite;
}

// The words of a case in their order. After the first that is missing or wrong all are.
class CWords {
  public:
    explicit CWords(const std::string& strLine) : m_stream(strLine) {}

    std::string Word() {
        std::string str;
        m_stream >> str;
        return str;
    }
    int Number() {
        int n = 0;
        m_stream >> n;
        return m_stream ? n : 0;
    }
    CPoint Point() {
        const int x = Number();
        return {x, Number()};
    }
    CRect Box() {
        const CPoint pt = Point();
        const CPoint ptEnd = Point();
        return {pt.x, pt.y, ptEnd.x, ptEnd.y};
    }
    CBlock Block() {
        const CPoint pt = Point();
        const CPoint ptSize = Point();
        return {pt.x, pt.y, ptSize.x, ptSize.y};
    }
    std::vector<CPoint> Points() {
        const int nCount = Number();
        std::vector<CPoint> points;
        for (int i = 0; i < nCount && m_stream; ++i) points.push_back(Point());
        return points;
    }
    void Fail() { m_stream.setstate(std::ios::failbit); }
    bool Good() const { return !m_stream.fail(); }
    bool AtEnd() { return Good() && (m_stream >> std::ws).eof(); }

  private:
    std::istringstream m_stream;
};

std::string Returned(bool bResult) {
    return bResult ? "ret 1" : "ret 0";
}

bool DrawLine(CSurface& surface, const CRect& rc) {
    surface.MoveTo({rc.left, rc.top});
    return surface.LineTo({rc.right, rc.bottom});
}

bool DrawShape(CSurface& surface, const std::string& strShape, CWords& words) {
    const CRect rc = words.Box();
    if (strShape == "LINE") return DrawLine(surface, rc);
    if (strShape == "RECT") return surface.Rectangle(rc);
    if (strShape == "ELLIPSE") return surface.Ellipse(rc);
    words.Fail();
    return false;
}

bool DrawFlood(CSurface& surface, CWords& words) {
    const CPoint pt = words.Point();
    const std::string strColor = words.Word();
    const int nShapes = words.Number();
    for (int i = 0; i < nShapes && words.Good(); ++i) {
        const std::string strShape = words.Word();
        DrawShape(surface, strShape, words);
    }
    surface.SelectBrush(CBrush::Solid(kBrush));
    const CColor color = strColor == "A" ? surface.GetPixel(pt.x, pt.y) : ColorOf(strColor[0]);
    return words.Good() && surface.FloodFill(pt, color);
}

bool DrawDotted(CSurface& surface, CWords& words) {
    static constexpr std::pair<const char*, PenStyle> kStyles[] = {{"dot", PenStyle::kDot},
                                                                   {"dash", PenStyle::kDash},
                                                                   {"dashdot", PenStyle::kDashDot},
                                                                   {"dashdotdot", PenStyle::kDashDotDot}};
    const std::string strStyle = words.Word();
    const auto* const it =
        std::ranges::find_if(kStyles, [&](const auto& style) { return style.first == strStyle; });
    if (it == std::end(kStyles)) words.Fail();
    const std::string strGaps = words.Word();
    const std::string strGround = words.Word();
    const std::string strShape = words.Word();
    if (!words.Good()) return false;
    surface.SelectPen(CPen::Dotted(it->second, kPen));
    surface.SetTransparentGaps(strGaps == "transparent");
    if (strGround == "brush") surface.FillRect(surface.Bounds(), kBrush);
    if (strShape != "POLYLINE" && strShape != "LINETO") return DrawShape(surface, strShape, words);
    const std::vector<CPoint> points = words.Points();
    if (strShape == "POLYLINE") return surface.Polyline(points);
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i == 0)
            surface.MoveTo(points[i]);
        else
            surface.LineTo(points[i]);
    }
    return true;
}

CRegion ReadRegion(const std::string& strShape, CWords& words) {
    if (strShape == "POLY") return CRegion::MakePolygon(words.Points());
    if (strShape == "ELL") return CRegion::MakeEllipse(words.Box());
    if (strShape == "RECT") return CRegion::MakeRectangle(words.Box());
    words.Fail();
    return {};
}

std::string MarkRegion(CSurface& surface, const CRegion& region) {
    for (int y = 0; y < surface.Height(); ++y)
        for (int x = 0; x < surface.Width(); ++x)
            if (region.Contains({x, y})) surface.SetPixel(x, y, kBrush);
    const CRect& rc = region.Box();
    std::ostringstream answer;
    answer << "box " << static_cast<int>(region.Type()) << ' ' << rc.left << ' ' << rc.top << ' ' << rc.right
           << ' ' << rc.bottom;
    return answer.str();
}

bool DrawStretch(CSurface& surface, CWords& words) {
    const CPoint ptSize = words.Point();
    const std::string strRows = words.Word();
    const CBlock blockTo = words.Block();
    const CBlock blockFrom = words.Block();
    CSurface source(ptSize.x, ptSize.y);
    if (strRows.size() + 1 !=
        static_cast<std::size_t>(source.Width() + 1) * static_cast<std::size_t>(source.Height())) {
        words.Fail();
        return false;
    }
    std::size_t n = 0;
    for (int y = 0; y < ptSize.y; ++y, ++n)
        for (int x = 0; x < ptSize.x; ++x) source.SetPixel(x, y, ColorOf(strRows[n++]));
    surface.Stretch(source.Pixels(), blockFrom, blockTo, surface.Bounds());
    return true;
}

std::string Draw(CSurface& surface, const std::string& strKind, CWords& words) {
    if (strKind == "POLYLINE") return Returned(surface.Polyline(words.Points()));
    if (strKind == "POLYGON") return Returned(surface.Polygon(words.Points()));
    if (strKind == "FILLRECT") return Returned(surface.Rectangle(words.Box()));
    if (strKind == "FLOOD") return Returned(DrawFlood(surface, words));
    if (strKind == "DOTTED") return Returned(DrawDotted(surface, words));
    if (strKind == "STRETCH") return Returned(DrawStretch(surface, words));
    if (strKind.starts_with("RGN")) return MarkRegion(surface, ReadRegion(strKind.substr(3), words));
    if (strKind == "FILLRGN") {
        const std::string strShape = words.Word();
        return Returned(surface.FillRegion(ReadRegion(strShape, words), kBrush));
    }
    if (strKind == "ROUNDRECT") {
        const CRect rc = words.Box();
        const CPoint ptEllipse = words.Point();
        return Returned(surface.RoundRect(rc, {ptEllipse.x, ptEllipse.y}));
    }
    if (strKind == "BEZIER") {
        std::array<CPoint, 4> points;
        for (CPoint& pt : points) pt = words.Point();
        return Returned(surface.Bezier(points));
    }
    return Returned(DrawShape(surface, strKind, words));
}

}  // namespace

std::string CFigure::Text() const {
    std::string strText = "= ";
    strText += strAnswer;
    strText += '\n';
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) strText += LetterOf(picture.GetPixel(x, y));
        strText += '\n';
    }
    return strText;
}

std::optional<CFigure> DrawFigure(const std::string& strCase, std::string& strError) {
    CWords words(strCase);
    words.Word();
    const std::string strKind = words.Word();
    const CPoint ptSize = words.Point();
    const int nPenWidth = words.Number();
    const std::string strBrush = words.Word();
    if (!words.Good()) {
        strError = "no case";
        return std::nullopt;
    }
    CFigure figure{"", CSurface(ptSize.x, ptSize.y)};
    CSurface& surface = figure.picture;
    if (surface.Bounds().IsEmpty()) {
        strError = "no such size";
        return std::nullopt;
    }
    surface.FillRect(surface.Bounds(), kWhite);
    surface.SelectPen(nPenWidth > 0 ? CPen::Solid(nPenWidth, kPen) : CPen::Null());
    surface.SelectBrush(strBrush == "solid" ? CBrush::Solid(kBrush) : CBrush::Hollow());
    figure.strAnswer = Draw(surface, strKind, words);
    if (words.AtEnd()) return figure;
    strError = "unknown kind, or wrong arguments";
    return std::nullopt;
}

bool IsFigureCase(const std::string& strLine) {
    return strLine.find(' ') != std::string::npos && strLine[0] != '=' && strLine[0] != '#';
}

bool DrawFigures(std::istream& in, std::ostream& out, std::string& strError) {
    std::string strLine;
    for (int nLine = 1; std::getline(in, strLine); ++nLine) {
        if (!strLine.empty() && strLine.back() == '\r') strLine.pop_back();
        if (!IsFigureCase(strLine)) continue;
        const std::optional<CFigure> figure = DrawFigure(strLine, strError);
        if (!figure) {
            strError.insert(0, "line " + std::to_string(nLine) + ": ");
            return false;
        }
        out << strLine << '\n' << figure->Text();
    }
    return true;
}
