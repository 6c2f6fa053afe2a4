// The drawing calls against pictures of what they leave under the platform's drawing rules (figures.txt),
// kind by kind.

#include "surface/figures/Figures.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

namespace {

struct CVector {
    std::string strCase;
    std::string strText;
};
using CVectors = std::map<std::string, std::vector<CVector>>;

std::string FileName() {
    return std::string(FOTARIUM_SOURCE_DIR) + "/tests/surface/figures.txt";
}

// The vectors by their kind.
CVectors ReadVectors() {
    CVectors vectors;
    std::ifstream file(FileName());
    CVector* pVector = nullptr;
    for (std::string strLine; std::getline(file, strLine);) {
        if (IsFigureCase(strLine)) {
            std::string strKind;
            std::istringstream(strLine) >> strKind >> strKind;
            pVector = &vectors[strKind].emplace_back(CVector{strLine, ""});
        } else if (pVector != nullptr) {
            pVector->strText += strLine + "\n";
        }
    }
    return vectors;
}

const CVectors& Vectors() {
    static const CVectors vectors = ReadVectors();
    return vectors;
}

// Both pictures side by side, rows that differ marked.
std::string SideBySide(const std::string& strDrawn, const std::string& strExpected) {
    std::istringstream drawn(strDrawn);
    std::istringstream expected(strExpected);
    std::string strResult = "drawn, and as it should be:\n";
    for (std::string strLeft, strRight; std::getline(drawn, strLeft) && std::getline(expected, strRight);)
        strResult.append(strLeft).append("   ").append(strRight).append(strLeft == strRight ? "\n"
                                                                                            : "   <\n");
    return strResult;
}

class Figures : public testing::TestWithParam<std::pair<const char*, std::size_t>> {};

}  // namespace

TEST_P(Figures, LeaveThePixelsOfThePlatform) {
    const auto& [szKind, nCount] = GetParam();
    ASSERT_TRUE(Vectors().contains(szKind));
    const std::vector<CVector>& vectors = Vectors().at(szKind);
    EXPECT_EQ(vectors.size(), nCount);
    for (const CVector& vector : vectors) {
        std::string strError;
        const std::optional<CFigure> figure = DrawFigure(vector.strCase, strError);
        ASSERT_TRUE(figure) << vector.strCase << ": " << strError;
        EXPECT_TRUE(figure->Text() == vector.strText) << vector.strCase << '\n'
                                                      << SideBySide(figure->Text(), vector.strText);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, Figures,
    testing::Values(std::pair("LINE", 92), std::pair("POLYLINE", 26), std::pair("RECT", 40),
                    std::pair("ELLIPSE", 56), std::pair("ROUNDRECT", 28), std::pair("POLYGON", 32),
                    std::pair("BEZIER", 25), std::pair("FILLRECT", 15), std::pair("FLOOD", 22),
                    std::pair("DOTTED", 40), std::pair("RGNPOLY", 19), std::pair("RGNELL", 20),
                    std::pair("RGNRECT", 8), std::pair("FILLRGN", 15), std::pair("STRETCH", 17)),
    [](const auto& kind) { return std::string(kind.param.first); });

TEST(FiguresText, SaysWhichLineIsNoCase) {
    for (const char* const szLine :
         {"A LINE 9 9 1 hollow 1 2 3", "A LINE 9 9 1 hollow 1 2 3 4 5",
          "A LINE 100000 100000 1 hollow 1 2 3 4", "A BLOB 9 9 1 hollow 1 2 3 4",
          "A POLYGON 9 9 1 hollow 999999999 1 2", "A STRETCH 9 9 0 none -2 -2 x 0 0 2 2 0 0 2 2", "A B"}) {
        std::istringstream in(std::string("A LINE 2 2 1 hollow 0 0 1 1\n") + szLine + "\n");
        std::ostringstream out;
        std::string strError;
        EXPECT_FALSE(DrawFigures(in, out, strError)) << szLine;
        EXPECT_TRUE(strError.starts_with("line 2: ")) << szLine << ": " << strError;
    }
}
