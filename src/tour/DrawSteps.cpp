#include "tour/DrawSteps.h"

#include <QLineEdit>
#include <QTest>
#include <memory>

#include "qt/DialogView.h"
#include "resources/Ids.h"
#include "resources/ToolTable.h"
#include "tour/Pencil.h"
#include "tour/Screen.h"
#include "tour/StepTools.h"

namespace {

constexpr QSize kPage{640, 480};
constexpr QPoint kWells{220, 500};  // inside the wells of the main window
constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr QRgb kSky = 0xFF8CC8F0;
constexpr QRgb kGrass = 0xFF4E9A4A;
constexpr QRgb kSun = 0xFFF6C445;
constexpr QRgb kBark = 0xFF5A3A22;

// What later steps compare with.
struct CSeen {
    QImage canvas;
};
using CSeenPtr = std::shared_ptr<CSeen>;

// Where an option stands in the panel, counted from its top left corner.
QPoint InPanel(int x, int y) {
    return {168 + x, 344 + y};
}

QString ColorIs(CPerson& person, QPoint pt, QRgb rgb) {
    const QColor color = CPencil(person, kPage).ColorAt(pt);
    return color.rgb() == rgb ? QString()
                              : QStringLiteral("(%1, %2) is %3").arg(pt.x()).arg(pt.y()).arg(color.name());
}

CTourCheck IsColor(QPoint pt, QRgb rgb) {
    return [=](CPerson& person) { return ColorIs(person, pt, rgb); };
}

// The focus marks the current tool.
QString CheckMark(const CPerson& person, ETool tool) {
    return Unless(person.MainWindow()->WidgetOf(FindToolButton(tool))->hasFocus(), "the tool is not marked");
}

// A tool with an option of its panel, then what the hand does with it.
CTourStep Tool(ETool tool, const char* szName, const char* szTells, std::initializer_list<QPoint> options,
               const std::function<void(CPencil&)>& fnDraw, const CTourCheck& fnCheck) {
    const std::vector<QPoint> arrOptions(options);
    return {QString(szName), QString(szTells),
            [=](CPerson& person) {
                person.Click(FindToolButton(tool));
                for (const QPoint pt : arrOptions) person.ClickPoint(pt);
                CPencil pencil(person, kPage);
                fnDraw(pencil);
            },
            [=](CPerson& person) {
                const QString strMark = CheckMark(person, tool);
                return strMark.isEmpty() ? fnCheck(person) : strMark;
            }};
}

// A colour is typed into the dialog that fnOpen brings up.
void AddColor(std::vector<CTourStep>& steps, const char* szName, const char* szTells, QRgb rgb,
              std::function<void(CPerson&)> fnOpen, QPoint ptWell) {
    steps.push_back({QString(szName) + "-dialog", QStringLiteral("the colour dialog"), std::move(fnOpen),
                     [](CPerson& person) { return Unless(person.Asking() != nullptr, "no colour dialog"); }});
    steps.push_back({QString(szName), QString(szTells),
                     [rgb](CPerson& person) {
                         for (auto* pLine : person.Asking()->findChildren<QLineEdit*>()) {
                             if (!pLine->text().startsWith('#')) continue;
                             pLine->selectAll();
                             QTest::keyClicks(pLine, QColor(rgb).name());
                         }
                         person.Answer(QStringLiteral("确定"));
                     },
                     [rgb, ptWell](CPerson& person) {
                         const QImage image = person.LookAtWindow();
                         const QColor color = image.pixelColor(ptWell * image.devicePixelRatio());
                         return Unless(color.rgb() == rgb, "the well has another colour");
                     }});
}

void ClickWells(CPerson& person, Qt::MouseButton button) {
    QTest::mouseDClick(person.MainWindow(), button, Qt::NoModifier, kWells);
}

constexpr QPoint kForegroundWell{226, 505};
constexpr QPoint kBackgroundWell{250, 528};

void AddGround(std::vector<CTourStep>& steps) {
    steps.push_back(Tab("draw-page", "DRAW: the white page, the magnifier, an empty panel", kTabDraw,
                        IsColor({320, 240}, kWhite)));
    AddColor(
        steps, "draw-foreground", "the foreground becomes blue", kSky,
        [](CPerson& person) { person.Click(kPaintColor); }, kForegroundWell);
    steps.push_back(Tool(
        ETool::Fill, "draw-fill", "fill: one click colours the whole page", {},
        [](CPencil& pencil) {
            pencil.Click({320, 240});
        },
        IsColor({5, 475}, kSky)));
    AddColor(
        steps, "draw-background", "a right double click on the wells: the background becomes green", kGrass,
        [](CPerson& person) { ClickWells(person, Qt::RightButton); }, kBackgroundWell);
    steps.push_back(Tool(
        ETool::Rectangle, "draw-rectangle", "rectangle, filled, by the right button", {InPanel(37, 62)},
        [](CPencil& pencil) {
            pencil.Stroke({{-4, 340}, {644, 485}}, Qt::RightButton);
        },
        [](CPerson& person) {
            const QString strGround = ColorIs(person, {320, 420}, kGrass);
            return strGround.isEmpty() ? ColorIs(person, {320, 300}, kSky) : strGround;
        }));
    AddColor(
        steps, "draw-sun-colour", "a left double click on the wells: the foreground becomes yellow", kSun,
        [](CPerson& person) { ClickWells(person, Qt::LeftButton); }, kForegroundWell);
    steps.push_back(Tool(
        ETool::Ellipse, "draw-ellipse", "ellipse, filled", {InPanel(37, 62)},
        [](CPencil& pencil) {
            pencil.Stroke({{470, 40}, {560, 130}});
        },
        IsColor({515, 85}, kSun)));
}

void AddStrokes(std::vector<CTourStep>& steps, const CSeenPtr& pSeen) {
    steps.push_back(Tool(
        ETool::Airbrush, "draw-airbrush", "airbrush, large: held down, it goes on spraying",
        {InPanel(37, 60)},
        [pSeen](CPencil& pencil) {
            pencil.Press({515, 150});
        },
        [pSeen](CPerson& person) {
            const QImage canvas = person.LookAt(kCanvas);
            const bool bGrows = !pSeen->canvas.isNull() && Differs(canvas, pSeen->canvas);
            pSeen->canvas = canvas;
            return Unless(bGrows, "no new dots");
        }));
    steps.push_back({"draw-airbrush-up", "released, it stops",
                     [pSeen](CPerson& person) {
                         CPencil(person, kPage).Release({515, 150});
                         pSeen->canvas = person.LookAt(kCanvas);
                     },
                     [pSeen](CPerson& person) {
                         QTest::qWait(50);
                         return Unless(!Differs(person.LookAt(kCanvas), pSeen->canvas), "it still sprays");
                     }});
    AddColor(
        steps, "draw-bark-colour", "the foreground becomes brown", kBark,
        [](CPerson& person) { person.Click(kPaintColor); }, kForegroundWell);
    steps.push_back(Tool(
        ETool::Brush, "draw-brush", "brush, the largest round one", {InPanel(12, 12)},
        [](CPencil& pencil) {
            pencil.Stroke({{150, 390}, {152, 360}, {148, 330}});
        },
        IsColor({150, 375}, kBark)));
    steps.push_back(Tool(
        ETool::Polygon, "draw-polygon", "polygon: drags and a double click; outline and the other colour",
        {InPanel(37, 40)},
        [](CPencil& pencil) {
            pencil.Stroke({{90, 330}, {150, 180}});
            pencil.Stroke({{150, 180}, {210, 330}});
            pencil.DoubleClick({150, 310});
        },
        [](CPerson& person) {
            const QString strLeaf = ColorIs(person, {150, 260}, kGrass);
            return strLeaf.isEmpty() ? ColorIs(person, {90, 250}, kSky) : strLeaf;
        }));
    steps.push_back(Tool(
        ETool::Pen, "draw-pen", "pen: birds", {},
        [](CPencil& pencil) {
            pencil.Stroke({{300, 90}, {315, 75}, {330, 92}, {345, 75}, {360, 90}});
            pencil.Stroke({{380, 130}, {390, 120}, {400, 131}, {410, 120}, {420, 130}});
        },
        IsColor({315, 75}, kBark)));
    steps.push_back(Tool(
        ETool::Eraser, "draw-eraser", "eraser, the largest: the other colour, a bush", {InPanel(37, 58)},
        [](CPencil& pencil) {
            pencil.Stroke({{560, 336}, {590, 322}, {620, 336}, {575, 332}});
        },
        IsColor({590, 322}, kGrass)));
}

void AddShapes(std::vector<CTourStep>& steps, const CSeenPtr& pSeen) {
    steps.push_back(Tool(
        ETool::Line, "draw-line", "line, five wide: a fence", {InPanel(37, 63)},
        [](CPencil& pencil) {
            for (int x = 260; x <= 420; x += 40) pencil.Stroke({{x, 380}, {x, 330}});
            pencil.Stroke({{250, 345}, {430, 345}});
        },
        IsColor({300, 360}, kBark)));
    steps.push_back(Tool(
        ETool::RoundRect, "draw-round-rectangle", "rounded rectangle, outline only", {InPanel(37, 18)},
        [](CPencil& pencil) {
            pencil.Stroke({{450, 250}, {540, 340}});
        },
        [](CPerson& person) {
            const QString strWall = ColorIs(person, {450, 300}, kBark);
            return strWall.isEmpty() ? ColorIs(person, {500, 300}, kSky) : strWall;
        }));
    steps.push_back(Tool(
        ETool::Curve, "draw-curve", "curve: a line, bent by two more drags", {InPanel(37, 37)},
        [](CPencil& pencil) {
            pencil.Stroke({{20, 470}, {600, 350}});
            pencil.Stroke({{200, 350}, {150, 360}});
            pencil.Stroke({{400, 470}, {450, 470}});
        },
        IsColor({20, 470}, kBark)));
    steps.push_back({"draw-undo", "Undo takes the curve back",
                     [](CPerson& person) { person.Click(kCmdUndo); }, IsColor({20, 470}, kGrass)});
    steps.push_back({"draw-redo", "Redo brings it again", [](CPerson& person) { person.Click(kCmdRedo); },
                     IsColor({20, 470}, kBark)});
    steps.push_back(Tool(
        ETool::Picker, "draw-picker", "colour picker: the sun's yellow becomes the foreground", {},
        [](CPencil& pencil) {
            pencil.Click({515, 85});
        },
        [](CPerson& person) {
            const QImage image = person.LookAtWindow();
            return Unless(image.pixelColor(kForegroundWell * image.devicePixelRatio()).rgb() == kSun,
                          "the well has another colour");
        }));
    const auto zoom = [&steps, pSeen](const char* szName, const char* szTells, int nOption, bool bSame) {
        steps.push_back(Tool(
            ETool::Magnifier, szName, szTells, {InPanel(30, 14 + 15 * nOption)}, [](CPencil&) {},
            [pSeen, bSame](CPerson& person) {
                return Unless(Differs(person.LookAt(kCanvas), pSeen->canvas) != bSame, "wrong zoom");
            }));
    };
    steps.push_back({"draw-whole", "the picture so far", [](CPerson&) {},
                     [pSeen](CPerson& person) {
                         pSeen->canvas = person.LookAt(kCanvas);
                         return QString();
                     }});
    zoom("draw-zoom-2", "magnifier at 2x", 1, false);
    zoom("draw-zoom-4", "magnifier at 4x", 2, false);
    zoom("draw-zoom-6", "magnifier at 6x", 3, false);
    zoom("draw-zoom-1", "and back at 1x", 0, true);
}

void AddSelections(std::vector<CTourStep>& steps) {
    const auto command = [&steps](const char* szName, const char* szTells, int nId, CTourCheck fnCheck) {
        steps.push_back({szName, szTells, [nId](CPerson& person) { person.Click(nId); }, std::move(fnCheck)});
    };
    steps.push_back(Tool(
        ETool::SelectRect, "select-rectangle", "rectangle selection: a dotted line, Copy, Cut and Crop on",
        {},
        [](CPencil& pencil) {
            pencil.Stroke({{80, 170}, {220, 400}});
        },
        [](CPerson& person) {
            return CheckKeys(person, {kCmdCopy, kCmdCut, kCmdCrop}, {kCmdPaste});
        }));
    command("select-copy", "Copy: Paste is on", kCmdCopy,
            [](CPerson& person) { return CheckKeys(person, {kCmdPaste}, {}); });
    command("select-paste", "Paste: the copy floats in the corner", kCmdPaste, [](CPerson& person) {
        const QString strKeys = CheckKeys(person, {kCmdPaste}, {kCmdCopy, kCmdCut, kCmdCrop});
        return strKeys.isEmpty() ? ColorIs(person, {70, 90}, kGrass) : strKeys;
    });
    steps.push_back({"select-drag", "the float is dragged",
                     [](CPerson& person) {
                         CPencil(person, kPage).Stroke({{70, 100}, {240, 250}});
                     },
                     [](CPerson& person) {
                         const QString strNew = ColorIs(person, {240, 240}, kGrass);
                         return strNew.isEmpty() ? ColorIs(person, {70, 90}, kSky) : strNew;
                     }});
    steps.push_back({"select-merge", "a click beside it: it is part of the picture",
                     [](CPerson& person) {
                         CPencil(person, kPage).Click({600, 20});
                     },
                     IsColor({240, 240}, kGrass)});
    steps.push_back(Tool(
        ETool::SelectPolygon, "select-polygon", "polygon selection, closed by a double click", {},
        [](CPencil& pencil) {
            pencil.Stroke({{450, 20}, {580, 20}});
            pencil.Stroke({{580, 20}, {515, 160}});
            pencil.DoubleClick({480, 100});
        },
        [](CPerson& person) {
            return CheckKeys(person, {kCmdCopy, kCmdCut, kCmdCrop}, {});
        }));
    command("select-cut", "Cut: its shape has the background colour", kCmdCut, [](CPerson& person) {
        const QString strKeys = CheckKeys(person, {kCmdPaste}, {kCmdCopy, kCmdCut, kCmdCrop});
        return strKeys.isEmpty() ? ColorIs(person, {515, 60}, kGrass) : strKeys;
    });
    command("select-undo", "Undo: the sun again", kCmdUndo, IsColor({515, 85}, kSun));
    steps.push_back(Tool(
        ETool::SelectFree, "select-free", "free selection: the line follows the hand", {},
        [](CPencil& pencil) {
            pencil.Stroke(
                {{430, 230}, {520, 20}, {600, 120}, {610, 300}, {560, 380}, {440, 370}, {430, 240}});
        },
        [](CPerson& person) {
            return CheckKeys(person, {kCmdCopy, kCmdCut, kCmdCrop}, {});
        }));
    command("select-crop", "Crop: its box, white beside the shape", kCmdCrop, [](CPerson& person) {
        if (person.TextOf(kInfoSize).contains("640X480")) return QStringLiteral("the size is as before");
        return CheckKeys(person, {}, {kCmdCopy, kCmdCut, kCmdCrop, kCmdPaste});
    });
    command("select-crop-undo", "Undo: the whole picture again", kCmdUndo, IsColor({150, 260}, kGrass));
    steps.push_back(
        Tab("draw-left", "EFFECT: what was painted is the picture", kTabEffect, IsColor({150, 260}, kGrass)));
}

}  // namespace

void AddDraw(std::vector<CTourStep>& steps) {
    const auto pSeen = std::make_shared<CSeen>();
    AddGround(steps);
    AddStrokes(steps, pSeen);
    AddShapes(steps, pSeen);
    AddSelections(steps);
}
