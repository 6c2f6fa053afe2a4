#include "editor/SizeChangeDlg.h"

#include <gtest/gtest.h>

#include <memory>

#include "resources/Ids.h"
#include "support/Pictures.h"
#include "window/DialogKeys.h"

namespace {

class SizeChangeDlg : public testing::Test, public CMessageBoxes {
  protected:
    void Open(CSize size, std::vector<CSize> arrPhoneSizes = {}) {
        m_pDialog = std::make_unique<CSizeChangeDlg>(size, std::move(arrPhoneSizes), *this);
        m_pDialog->OnInitDialog();
    }
    CControlSet& Controls() { return m_pDialog->Controls(); }
    void Type(int nId, const std::string& strText) {
        Controls().SetText(nId, strText);
        m_pDialog->OnNotify(nId, ENotice::TextChanged);
    }
    std::string Texts() { return Controls().Text(kSizeWidth) + "x" + Controls().Text(kSizeHeight); }
    void ExpectPage(bool bPhone) {
        for (const int nId : {kSizeWidthLabel, kSizeWidth, kSizeHeightLabel, kSizeHeight, kSizeKeepRatio,
                              kSizeKeepRatioLabel, kSizeToPhone})
            EXPECT_EQ(Controls().IsShown(nId), !bPhone) << nId;
        for (const int nId : {kSizePhoneList, kSizeToOwn}) EXPECT_EQ(Controls().IsShown(nId), bPhone) << nId;
        EXPECT_TRUE(Controls().IsShown(kSizeOk) && Controls().IsShown(kSizeCancel));
    }
    EBoxAnswer Show(const CMessageBox& box) override {
        m_arrBoxes.push_back(box);
        return EBoxAnswer::Ok;
    }

    std::unique_ptr<CSizeChangeDlg> m_pDialog;
    std::vector<CMessageBox> m_arrBoxes;
};

}  // namespace

TEST_F(SizeChangeDlg, TheOtherSideFollowsAtOnceAndBothSettleWhenTheEditIsLeft) {
    struct CCase {
        CSize sizeFirst;
        int nId;
        const char* szTyped;
        const char* szFollowed;
        const char* szSettled;
        CSize size;
    };
    const CCase kCases[] = {
        {{640, 480}, kSizeWidth, "100", "100x75", "100x75", {100, 75}},
        {{640, 480}, kSizeWidth, "101", "101x75", "100x75", {100, 75}},
        {{640, 480}, kSizeWidth, "102", "102x76", "100x75", {100, 75}},
        {{640, 480}, kSizeHeight, "100", "133x100", "132x99", {132, 99}},
        {{176, 144}, kSizeWidth, "100", "100x81", "99x81", {99, 81}},
        {{300, 300}, kSizeHeight, "77", "77x77", "77x77", {77, 77}},
        {{1920, 1080}, kSizeWidth, "111", "111x62", "96x54", {96, 54}},
        // Without a common divisor both would run down to nothing.
        {{1250, 937}, kSizeWidth, "500", "500x374", "500x374", {500, 374}},
        {{1250, 937}, kSizeWidth, "1250", "1250x937", "1250x937", {1250, 937}},
        {{479, 641}, kSizeHeight, "300", "224x300", "224x300", {224, 300}},
        // What is no size is given as it is, to be refused.
        {{640, 480}, kSizeWidth, "0", "0x0", "0x0", {0, 0}},
        {{640, 480}, kSizeWidth, "", "x0", "0x0", {0, 0}},
        {{640, 480}, kSizeWidth, "abc", "abcx0", "0x0", {0, 0}},
        {{640, 480}, kSizeWidth, " 64 pixels", " 64 pixelsx48", "64x48", {64, 48}},
        {{640, 480}, kSizeWidth, "-1", "-1x0", "0x0", {0, 0}},
        {{640, 480}, kSizeHeight, "-6", "-8x-6", "-8x-6", {-8, -6}},
        {{640, 480},
         kSizeHeight,
         "99999999999",
         "2147483647x99999999999",
         "2147483647x2147483647",
         {2147483647, 2147483647}},
        {{640, 480},
         kSizeWidth,
         "-99999999999",
         "-99999999999x-1610612736",
         "-2147483648x-1610612736",
         {-2147483647 - 1, -1610612736}},
    };
    for (const CCase& test : kCases) {
        SCOPED_TRACE(test.szFollowed);
        // Left by hand, and by Ok at once.
        for (const bool bLeft : {true, false}) {
            Open(test.sizeFirst);
            Type(test.nId, test.szTyped);
            EXPECT_EQ(Texts(), test.szFollowed);
            m_pDialog->OnNotify(test.nId == kSizeWidth ? kSizeHeight : kSizeWidth, ENotice::TextDone);
            EXPECT_EQ(Texts(), test.szFollowed);
            if (bLeft) m_pDialog->OnNotify(test.nId, ENotice::TextDone);
            EXPECT_TRUE(!bLeft || Texts() == test.szSettled) << Texts();
            EXPECT_EQ(m_pDialog->Size(), test.sizeFirst);
            m_pDialog->OnCommand(kSizeOk);
            EXPECT_EQ(Texts(), test.szSettled);
            EXPECT_EQ(m_pDialog->Size(), test.size);
            EXPECT_EQ(m_pDialog->EndCode(), CDialog::kDialogOk);
        }
    }
}

// Of all that can be typed, the typed side gives way by little, and the settled pair stands still.
TEST_F(SizeChangeDlg, ASettledPairKeepsTheRatio) {
    for (const CSize size : {CSize{640, 480}, {1562, 1171}, {3, 2}, {100, 3200}, {641, 640}, {20, 20}}) {
        for (int n = 1; n <= 3300; n += 7) {
            Open(size);
            Type(kSizeWidth, std::to_string(n));
            const std::string strFollowed = Texts();
            m_pDialog->OnCommand(kSizeOk);
            const CSize sizeNew = m_pDialog->Size();
            ASSERT_TRUE(sizeNew.cx <= n && sizeNew.cx >= n - 16) << strFollowed << " " << Texts();
            ASSERT_EQ(sizeNew.cy, static_cast<int>(std::int64_t{sizeNew.cx} * size.cy / size.cx));
        }
    }
}

TEST_F(SizeChangeDlg, WithoutTheRatioBothSidesAreFree) {
    Open({640, 480});
    EXPECT_TRUE(Controls().IsChecked(kSizeKeepRatio));
    m_pDialog->OnCommand(kSizeKeepRatioLabel);
    Type(kSizeWidth, "33");
    Type(kSizeHeight, "  44");
    m_pDialog->OnNotify(kSizeHeight, ENotice::TextDone);
    EXPECT_EQ(Texts(), "33x  44");
    // The next change follows again, from the side that changes and the first size.
    m_pDialog->OnCommand(kSizeKeepRatioLabel);
    EXPECT_EQ(Texts(), "33x  44");
    Type(kSizeHeight, "48");
    EXPECT_EQ(Texts(), "64x48");
    // Turned off behind the typing: nothing is settled any more.
    Type(kSizeWidth, "101");
    m_pDialog->OnCommand(kSizeKeepRatioLabel);
    EXPECT_TRUE(DoDialogKey(*m_pDialog, {kKeyEnter, false, false}));
    EXPECT_EQ(m_pDialog->Size(), (CSize{101, 75}));
    EXPECT_EQ(m_pDialog->EndCode(), CDialog::kDialogOk);
}

TEST_F(SizeChangeDlg, ThePhonesSizesHaveAPageOfTheirOwn) {
    Open({640, 480});
    EXPECT_EQ(Texts(), "640x480");
    EXPECT_EQ(Controls().Focus(), kSizeOk);
    m_pDialog->OnCommand(kSizeToPhone);
    ExpectPage(false);
    EXPECT_EQ(
        m_arrBoxes,
        (std::vector<CMessageBox>{{"无手机信息，请先连接手机", "注意", EBoxIcon::None, EBoxButtons::Ok}}));

    Open({640, 480}, {{176, 144}, {1280, 960}});
    ExpectPage(false);
    m_pDialog->Paint();
    m_pDialog->OnCommand(kSizeToPhone);
    ExpectPage(true);
    EXPECT_TRUE(m_pDialog->WantsPaint());  // the page has its own ground
    EXPECT_EQ(Controls().Find(kSizePhoneList)->arrItems[0].strText, " 176 X 144 ");
    EXPECT_EQ(Controls().Find(kSizePhoneList)->arrItems[1].strText, "1280 X 960 ");
    m_pDialog->OnCommand(kSizeToOwn);
    ExpectPage(false);
    // On its own page a chosen phone size is of no account, and the other way round.
    Controls().Select(kSizePhoneList, 1);
    Type(kSizeWidth, "100");
    m_pDialog->OnCommand(kSizeToPhone);
    EXPECT_TRUE(DoDialogKey(*m_pDialog, {kKeyEnter, false, false}));
    EXPECT_EQ(m_pDialog->Size(), (CSize{1280, 960}));

    Open({640, 480}, {{176, 144}});
    Type(kSizeWidth, "100");
    EXPECT_TRUE(DoDialogKey(*m_pDialog, {kKeyEscape, false, false}));
    EXPECT_EQ(m_pDialog->EndCode(), CDialog::kDialogCancel);
    EXPECT_EQ(m_pDialog->Size(), (CSize{640, 480}));
    EXPECT_EQ(m_arrBoxes.size(), 1U);
}
