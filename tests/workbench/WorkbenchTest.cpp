#include "workbench/Workbench.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <sstream>

#include "engines/effects/ImageEffect.h"
#include "image/Ppm.h"
#include "support/Pictures.h"
#include "support/TempFolder.h"

namespace {

class Workbench : public testing::Test {
  protected:
    // The words may name files of the folder as @name.
    int Run(CWorkWords arrWords) {
        for (std::string& strWord : arrWords)
            if (strWord.starts_with('@')) strWord = m_folder.Path(strWord.substr(1));
        std::ostringstream out;
        std::ostringstream errors;
        const int nStatus = RunWorkbench(arrWords, out, errors);
        m_strOut = out.str();
        m_strError = errors.str();
        return nStatus;
    }

    CPixels Written(const std::string& strName) const { return ReadPpm(m_folder.Path(strName)).pixels; }

    CTempFolder m_folder;
    CPixels m_src = NumberedPixels(40, 30);
    std::string m_strOut;
    std::string m_strError;
};

CPixels Expected(const CPixels& src, EEffect effect, int nLevel, int nRefWidth, std::uint32_t nSeed) {
    CxImage image(src);
    CRandomSequence random;
    random.Seed(nSeed);
    EXPECT_TRUE(ApplyEffect(image, effect, nLevel, nRefWidth, random));
    return image.Pixels();
}

TEST_F(Workbench, AppliesOneEffectToAFile) {
    ASSERT_TRUE(WritePpm(m_folder.Path("in.ppm"), m_src));
    ASSERT_EQ(Run({"effect", "1", "-60", "@in.ppm", "@out.ppm"}), kDone) << m_strError;
    EXPECT_EQ(Written("out.ppm"), Expected(m_src, EEffect::Contrast, -60, 40, 1));
    EXPECT_EQ(m_strOut + m_strError, "");

    ASSERT_EQ(Run({"effect", "23", "10", "@in.ppm", "@tile.ppm"}), kDone);
    EXPECT_EQ(Written("tile.ppm"), Expected(m_src, EEffect::Tile, 10, 40, 1));
    // Tiles in proportion to a full picture of that width, and other thicknesses of their joints.
    ASSERT_EQ(Run({"effect", "--seed", "7", "23", "10", "@in.ppm", "@tile.ppm", "--full-width", "800"}),
              kDone);
    EXPECT_EQ(Written("tile.ppm"), Expected(m_src, EEffect::Tile, 10, 800, 7));

    // A file may be replaced by its own result.
    ASSERT_EQ(Run({"effect", "4", "0", "@in.ppm", "@in.ppm"}), kDone);
    EXPECT_EQ(Written("in.ppm"), Expected(m_src, EEffect::Negative, 0, 40, 1));
}

TEST_F(Workbench, TellsAWrongCall) {
    ASSERT_TRUE(WritePpm(m_folder.Path("in.ppm"), m_src));
    const struct {
        CWorkWords arrWords;
        std::string strError;
    } arrCases[] = {
        {{}, "no verb; workbench --help lists them"},
        {{"paint"}, "paint is no verb; workbench --help lists them"},
        {{"effect", "1", "2", "@in.ppm"}, "it is effect ID LEVEL IN.ppm OUT.ppm"},
        {{"effect", "1", "2", "@in.ppm", "@out.ppm", "x"}, "it is effect ID LEVEL IN.ppm OUT.ppm"},
        {{"effect", "31", "2", "@in.ppm", "@out.ppm"}, "31 is no effect; workbench --help lists them"},
        {{"effect", "-1", "2", "@in.ppm", "@out.ppm"}, "-1 is no effect; workbench --help lists them"},
        {{"effect", "1", "2x", "@in.ppm", "@out.ppm"}, "2x is no level"},
        {{"effect", "1", "2147483648", "@in.ppm", "@out.ppm"}, "2147483648 is no level"},
        {{"effect", "1", "2", "@in.ppm", "@out.ppm", "--fast", "1"}, "--fast is no option of effect"},
        {{"effect", "1", "2", "@in.ppm", "@out.ppm", "--seed"}, "--seed needs a number"},
        {{"effect", "1", "2", "@in.ppm", "@out.ppm", "--seed", "-1"}, "-1 is no number for --seed"},
        {{"effect", "1", "2", "@in.ppm", "@out.ppm", "--full-width", "0"}, "0 is no number for --full-width"},
    };
    for (const auto& one : arrCases) {
        EXPECT_EQ(Run(one.arrWords), kWrongCall) << one.strError;
        EXPECT_EQ(m_strError, "workbench: " + one.strError + "\n");
    }
    EXPECT_EQ(m_folder.Names(), std::set<std::string>{"in.ppm"});
}

TEST_F(Workbench, TellsAFileThatCannotBeUsed) {
    const std::string strPixels(3 * 6, 'x');
    const struct {
        std::string strFile;
        std::string strError;
    } arrCases[] = {
        {"P5\n3 2\n255\n" + strPixels, "is no binary PPM"},
        {"P6\n3\n", "has no width and height"},
        {"P6\n3 -2\n255\n" + strPixels, "has no width and height"},
        {"P6\n3 2\n65535\n" + strPixels, "has another highest value than 255"},
        {"P6\n3 2\n", "has another highest value than 255"},
        {"P6\n3 2\n255\n" + strPixels.substr(1), "ends before its last pixel"},
        {"P6\n3 2\n255", "ends before its last pixel"},
        {"P6\n2000000000 2000000000\n255\n" + strPixels, "is too large"},
    };
    for (const auto& one : arrCases) {
        m_folder.Write("in.ppm", one.strFile);
        EXPECT_EQ(Run({"effect", "4", "0", "@in.ppm", "@out.ppm"}), kCannotBeDone);
        EXPECT_EQ(m_strError, "workbench: " + m_folder.Path("in.ppm") + " " + one.strError + "\n");
    }
    EXPECT_EQ(Run({"effect", "4", "0", "@none.ppm", "@out.ppm"}), kCannotBeDone);
    EXPECT_EQ(m_strError, "workbench: " + m_folder.Path("none.ppm") + " cannot be read\n");
    EXPECT_EQ(m_folder.Names(), std::set<std::string>{"in.ppm"});

    m_folder.Write("in.ppm", "P6 # made by hand\n3\t# wide\n# high\n2 255\n" + strPixels + "more");
    EXPECT_EQ(Run({"effect", "4", "0", "@in.ppm", "@no/out.ppm"}), kCannotBeDone);
    EXPECT_EQ(m_strError, "workbench: " + m_folder.Path("no/out.ppm") + " cannot be written\n");
    EXPECT_EQ(Run({"effect", "4", "0", "@in.ppm", "@out.ppm"}), kDone);
    EXPECT_EQ(PixelAt(Written("out.ppm"), 2, 1), (CColor{255 - 'x', 255 - 'x', 255 - 'x'}));
}

TEST_F(Workbench, HelpNamesEveryVerbAndEffect) {
    EXPECT_EQ(Run({"--help"}), kDone);
    for (const CEffectRow& row : kEffects) EXPECT_NE(m_strOut.find(row.szLabel), std::string::npos);
    EXPECT_NE(m_strOut.find("effect ID LEVEL IN.ppm OUT.ppm [--full-width N] [--seed N]"), std::string::npos);
    EXPECT_NE(m_strOut.find("figures CASES OUT"), std::string::npos);
}

TEST_F(Workbench, DrawsFiguresFromText) {
    m_folder.Write("cases",
                   "# A comment, and a row that is no case\r\n...\nL1 LINE 4 2 1 hollow 0 0 3 0\n= ret 9\n"
                   "R1 RECT 4 3 1 solid 0 0 4 3\n\nE1 RGNRECT 3 2 0 none 1 0 3 1");
    ASSERT_EQ(Run({"figures", "@cases", "@out"}), kDone) << m_strError;
    EXPECT_EQ(ReadBytes(m_folder.Path("out")),
              "L1 LINE 4 2 1 hollow 0 0 3 0\n= ret 1\nPPP.\n....\n"
              "R1 RECT 4 3 1 solid 0 0 4 3\n= ret 1\nPPPP\nPBBP\nPPPP\n"
              "E1 RGNRECT 3 2 0 none 1 0 3 1\n= box 2 1 0 3 1\n.BB\n...\n");
    // What it has written are cases again, with the same figures.
    ASSERT_EQ(Run({"figures", "@out", "@again"}), kDone) << m_strError;
    EXPECT_EQ(ReadBytes(m_folder.Path("again")), ReadBytes(m_folder.Path("out")));

    m_folder.Write("cases", "L1 LINE 4 2 1 hollow 0 0 3 0\nL2 LINE 4 2 1 hollow 0 0 3");
    EXPECT_EQ(Run({"figures", "@cases", "@none"}), kCannotBeDone);
    EXPECT_EQ(m_strError,
              "workbench: " + m_folder.Path("cases") + " line 2: unknown kind, or wrong arguments\n");
    EXPECT_EQ(Run({"figures", "@no", "@none"}), kCannotBeDone);
    EXPECT_EQ(m_strError, "workbench: " + m_folder.Path("no") + " cannot be read\n");
    EXPECT_EQ(Run({"figures", "@out", "@no/none"}), kCannotBeDone);
    EXPECT_EQ(m_strError, "workbench: " + m_folder.Path("no/none") + " cannot be written\n");
    EXPECT_EQ(Run({"figures", "@cases"}), kWrongCall);
    EXPECT_EQ(m_strError, "workbench: it is figures CASES OUT\n");
    EXPECT_EQ(m_folder.Names(), (std::set<std::string>{"again", "cases", "out"}));
}

// The program itself hands its words on and gives the status back.
TEST_F(Workbench, Program) {
    ASSERT_TRUE(WritePpm(m_folder.Path("in.ppm"), m_src));
    const std::string strCall = "'" FOTARIUM_WORKBENCH "' effect ";
    const std::string strFiles = " '" + m_folder.Path("in.ppm") + "' '" + m_folder.Path("out.ppm") + "'";
    EXPECT_EQ(WEXITSTATUS(std::system((strCall + "4 0" + strFiles).c_str())), kDone);
    EXPECT_EQ(Written("out.ppm"), Expected(m_src, EEffect::Negative, 0, 40, 1));
    EXPECT_EQ(WEXITSTATUS(std::system((strCall + "99 0" + strFiles + " 2>/dev/null").c_str())), kWrongCall);
}

}  // namespace
