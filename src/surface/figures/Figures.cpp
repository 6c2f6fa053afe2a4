#include "surface/figures/Figures.h"

#include <algorithm>
#include <span>
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

// A call that can draw nothing answers 0.
std::string Returned(bool bDrawn) {
    return bDrawn ? "ret 1" : "ret 0";
}

bool MakesALine(const std::vector<CPoint>& points) {
    return points.size() >= 2;
}

void DrawShape(CSurface& surface, const std::string& strShape, CWords& words) {
    const CRect rc = words.Box();
    if (strShape == "LINE") {
        surface.MoveTo({rc.left, rc.top});
        surface.LineTo({rc.right, rc.bottom});
    } else if (strShape == "RECT") {
        surface.Rectangle(rc);
    } else if (strShape == "ELLIPSE") {
        surface.Ellipse(rc);
    } else {
        words.Fail();
    }
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

// The figures of any number of points. False if they are too few.
bool DrawPoints(CSurface& surface, bool bPolygon, const std::vector<CPoint>& points) {
    if (bPolygon)
        surface.Polygon(points);
    else
        surface.Polyline(points);
    return MakesALine(points);
}

void DrawLines(CSurface& surface, const std::vector<CPoint>& points) {
    if (points.empty()) return;
    surface.MoveTo(points.front());
    for (const CPoint& pt : std::span(points).subspan(1)) surface.LineTo(pt);
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
    if (strShape == "POLYLINE") return DrawPoints(surface, false, words.Points());
    if (strShape == "LINETO")
        DrawLines(surface, words.Points());
    else
        DrawShape(surface, strShape, words);
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

void DrawStretch(CSurface& surface, CWords& words) {
    const CPoint ptSize = words.Point();
    const std::string strRows = words.Word();
    const CBlock blockTo = words.Block();
    const CBlock blockFrom = words.Block();
    CSurface source(ptSize.x, ptSize.y);
    if (strRows.size() + 1 !=
        static_cast<std::size_t>(source.Width() + 1) * static_cast<std::size_t>(source.Height())) {
        words.Fail();
        return;
    }
    std::size_t n = 0;
    for (int y = 0; y < ptSize.y; ++y, ++n)
        for (int x = 0; x < ptSize.x; ++x) source.SetPixel(x, y, ColorOf(strRows[n++]));
    surface.Stretch(source.Pixels(), blockFrom, blockTo, surface.Bounds());
}

// The calls that always draw.
void DrawAlways(CSurface& surface, const std::string& strKind, CWords& words) {
    if (strKind == "FILLRECT") {
        surface.Rectangle(words.Box());
    } else if (strKind == "STRETCH") {
        DrawStretch(surface, words);
    } else if (strKind == "FILLRGN") {
        const std::string strShape = words.Word();
        surface.FillRegion(ReadRegion(strShape, words), kBrush);
    } else if (strKind == "ROUNDRECT") {
        const CRect rc = words.Box();
        const CPoint ptEllipse = words.Point();
        surface.RoundRect(rc, {ptEllipse.x, ptEllipse.y});
    } else if (strKind == "BEZIER") {
        std::array<CPoint, 4> points;
        for (CPoint& pt : points) pt = words.Point();
        surface.Bezier(points);
    } else {
        DrawShape(surface, strKind, words);
    }
}

std::string Draw(CSurface& surface, const std::string& strKind, CWords& words) {
    if (strKind.starts_with("RGN")) return MarkRegion(surface, ReadRegion(strKind.substr(3), words));
    if (strKind == "POLYLINE" || strKind == "POLYGON")
        return Returned(DrawPoints(surface, strKind == "POLYGON", words.Points()));
    if (strKind == "FLOOD") return Returned(DrawFlood(surface, words));
    if (strKind == "DOTTED") return Returned(DrawDotted(surface, words));
    DrawAlways(surface, strKind, words);
    return Returned(true);
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
