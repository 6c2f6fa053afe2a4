#include "workbench/Workbench.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <sstream>

#include "engines/effects/ImageEffect.h"
#include "engines/warp/TextWarp.h"
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

TEST_F(Workbench, ReckonsAPage) {
    EXPECT_EQ(Run({"page", "preview", "1600", "1200", "336", "300", "256", "1000", "1500", "landscape"}),
              kDone);
    EXPECT_EQ(m_strOut, "page 212 300\nmargin 20\npicture 143 131 50 38\nsheet 18 50 300 200\nquestion no\n");
    EXPECT_EQ(Run({"page", "preview", "100", "60", "336", "336", "9", "0", "0", "portrait", "stamp"}), kDone);
    EXPECT_EQ(m_strOut,
              "page 237 336\nmargin 22\npicture 151 158 33 20\nsheet 49 0 237 336\nquestion yes\n"
              "stamp 1 4 29 19\n");
    EXPECT_EQ(Run({"page", "print", "90", "60", "300", "600", "2480", "7016", "portrait", "stamp"}), kDone);
    EXPECT_EQ(m_strOut, "page 2480 7016\nmargin 236\npicture 1082 3403 315 210\nstamp 19 85 230 206\n");
    for (const CWorkWords& arrWords :
         {CWorkWords{"page"},
          {"page", "paint"},
          {"page", "print", "90", "60", "300", "600", "2480", "portrait"},
          {"page", "print", "90", "60", "300", "600", "2480", "7016", "upright"},
          {"page", "print", "90", "60", "300", "600", "2480", "-1", "portrait"},
          {"page", "print", "90", "60", "300", "600", "2480", "7016", "portrait", "stamps"},
          {"page", "preview", "90", "60", "300", "600", "9", "0", "1000001", "portrait"}}) {
        EXPECT_EQ(Run(arrWords), kWrongCall);
        EXPECT_EQ(m_strOut, "");
    }
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
    EXPECT_NE(m_strOut.find("pack PICTURE.jpg THUMB.jpg OUT.jpg"), std::string::npos);
    EXPECT_NE(m_strOut.find("ports CASES OUT"), std::string::npos);
    EXPECT_NE(m_strOut.find("warp PARAMS BASE.ppm MASK.pgm OUT.ppm"), std::string::npos);
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

TEST_F(Workbench, WarpsAMaskByWhatAFileSets) {
    ASSERT_TRUE(WritePpm(m_folder.Path("in.ppm"), m_src));
    std::string strMask;
    for (int i = 0; i < 12 * 10; ++i) strMask += static_cast<char>(i * 2);
    m_folder.Write("mask.pgm", "P5\n12 10\n255\n" + strMask);
    CTextWarp warp;
    warp.SetBase(m_src);
    const std::vector<std::uint8_t> mask(strMask.begin(), strMask.end());
    ASSERT_TRUE(warp.SetMask(mask, 12, 10));
    const auto ExpectAs = [&](const std::string& strSettings, const TextArtParam& param) {
        m_folder.Write("params", strSettings);
        ASSERT_EQ(Run({"warp", "@params", "@in.ppm", "@mask.pgm", "@out.ppm"}), kDone) << m_strError;
        ASSERT_TRUE(warp.Render(param));
        EXPECT_NE(warp.Result(), m_src);
        EXPECT_EQ(Written("out.ppm"), warp.Result());
    };
    TextArtParam param;
    ExpectAs("", param);
    param.byRed = 1;
    param.byGreen = 22;
    param.byBlue = 255;
    param.nTextEffect = kTextReversed;
    param.fQuad = {1.5, 0, 30, -2, 28, 19, 0.25, 20};
    param.nBoxX = -2;
    param.nBoxY = 3;
    param.nBoxWidth = 31;
    param.nBoxHeight = 21;
    ExpectAs(
        "# words\r\n\ncolour 1 22 255 # ink\n  effect 3\r\nquad 1.5 0 30 -2 28 19 .25 2e1\nbox -2 3 31 21",
        param);
    param.nWarpKind = kWarpMesh;
    param.nMeshX = 4;
    param.nMeshY = -1;
    param.nMeshWidth = 20;
    param.nMeshHeight = 25;
    param.fMeshSrcX = param.fMeshDstX = RegularMeshX(20);
    param.fMeshSrcY = param.fMeshDstY = RegularMeshY(25);
    const std::string strMesh =
        "colour 1 22 255\neffect 3\nkind 1\nmesh 4 -1 20 25\ngrid 5 4\nregular 20 25\n";
    ExpectAs(strMesh, param);
    // The first points; the rest stays as it is.
    const MeshValues x = {0, 9, 12, 20, 0, 8}, y = {0, 0, 0, 0, 7, 9};
    std::copy_n(x.begin(), 6, param.fMeshDstX.begin());
    std::copy_n(y.begin(), 6, param.fMeshDstY.begin());
    ExpectAs(strMesh + "dstx 0 9 12 20 0 8\ndsty 0 0 0 0 7 9", param);
    param.nMeshCols = 3;
    param.nMeshRows = 3;
    param.fMeshSrcX = param.fMeshDstX = {0, 10, 20, 0, 10, 20, 0, 10, 20};
    param.fMeshSrcY = param.fMeshDstY = {0, 0, 0, 12, 12, 12, 25, 25, 25};
    const std::string strX = "0 10 20 0 10 20 0 10 20\n", strY = "0 0 0 12 12 12 25 25 25\n";
    ExpectAs(strMesh + "grid 3 3\nsrcx " + strX + "dstx " + strX + "srcy " + strY + "dsty " + strY, param);
}

TEST_F(Workbench, TellsWhatIsWrongWithAWarp) {
    ASSERT_TRUE(WritePpm(m_folder.Path("in.ppm"), m_src));
    m_folder.Write("mask.pgm", "P5\n1 1\n255\nx");
    const CWorkWords arrCall = {"warp", "@params", "@in.ppm", "@mask.pgm", "@out.ppm"};
    const std::pair<std::string, std::string> arrLines[] = {
        {"kind 2", "wrong numbers for kind"},
        {"kind", "wrong numbers for kind"},
        {"effect 1.5", "wrong numbers for effect"},
        {"colour 1 2 256", "wrong numbers for colour"},
        {"quad 1 2 3 4 5 6 7", "wrong numbers for quad"},
        {"quad 1 2 3 4 5 6 7 8 9", "wrong numbers for quad"},
        {"box 1 2 3 x", "wrong numbers for box"},
        {"grid 2 4", "wrong numbers for grid"},
        {"grid 5 5", "wrong numbers for grid"},
        {"srcx 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21", "wrong numbers for srcx"},
        {"dsty 1 2,5", "wrong numbers for dsty"},
        {"size 1 2", "size is no setting"},
    };
    for (const auto& [strLine, strError] : arrLines) {
        m_folder.Write("params", "kind 0\n#\n" + strLine + "\n");
        EXPECT_EQ(Run(arrCall), kCannotBeDone);
        EXPECT_EQ(m_strError, "workbench: " + m_folder.Path("params") + " line 3: " + strError + "\n");
    }
    m_folder.Write("params", "");
    EXPECT_EQ(Run({"warp", "@params", "@in.ppm", "@in.ppm", "@out.ppm"}), kCannotBeDone);
    EXPECT_EQ(m_strError, "workbench: " + m_folder.Path("in.ppm") + " is no binary PGM\n");
    EXPECT_EQ(Run({"warp", "@params", "@in.ppm", "@mask.pgm", "@no/out.ppm"}), kCannotBeDone);
    EXPECT_EQ(Run({"warp", "@no", "@in.ppm", "@mask.pgm", "@out.ppm"}), kCannotBeDone);
    EXPECT_EQ(m_strError, "workbench: " + m_folder.Path("no") + " cannot be read\n");
    EXPECT_EQ(Run({"warp", "@params", "@in.ppm", "@mask.pgm"}), kWrongCall);
    EXPECT_EQ(m_strError, "workbench: it is warp PARAMS BASE.ppm MASK.pgm OUT.ppm\n");
    EXPECT_EQ(m_folder.Names(), (std::set<std::string>{"in.ppm", "mask.pgm", "params"}));
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
