#include "resources/art/tool/Animation.h"

#include <gtest/gtest.h>

namespace {

// A drawing whose only group is animated so, or "nothing".
std::string StillWith(const char* pAnimation, int nMilliseconds, const char* pAct = "act") {
    const QString strDrawing = QString(R"(<svg><g id="act" display="none">%1</g></svg>)").arg(pAnimation);
    return StillOf(strDrawing.toUtf8(), pAct, nMilliseconds).value_or("nothing").toStdString();
}

}  // namespace

TEST(Animation, MomentsLieOnTheLineBetweenTheValues) {
    const char* pEven = R"(<animateTransform type="translate" values="0 10; 8 30; 8 0" dur="1s"/>)";
    const char* pUneven =
        R"(<animate attributeName="r" values="0;1;5;7" keyTimes="0;.5;.5;1" dur="1000ms"/>)";
    const char* pShifted = R"(<animate attributeName="r" values="0;4" begin="-750ms" dur="1s"/>)";
    const std::tuple<const char*, int, const char*> kCases[] = {
        {pEven, 0, "translate(0 10)"},    {pEven, 250, "translate(4 20)"}, {pEven, 750, "translate(8 15)"},
        {pEven, 3000, "translate(0 10)"}, {pUneven, 250, R"(r="0.5")"},    {pUneven, 2500, R"(r="5")"},
        {pShifted, 0, R"(r="3")"},        {pShifted, 500, R"(r="1")"}};
    for (const auto& [pAnimation, nMilliseconds, pExpected] : kCases) {
        const std::string strStill = StillWith(pAnimation, nMilliseconds);
        EXPECT_NE(strStill.find(pExpected), std::string::npos) << pExpected << " in " << strStill;
        EXPECT_EQ(strStill.find("animate"), std::string::npos) << strStill;
        EXPECT_EQ(strStill.find("display"), std::string::npos) << strStill;
    }
}

TEST(Animation, WhatCannotBeUnderstoodIsNotDrawnOtherwise) {
    for (const char* pRest :
         {R"(values="1;2")", R"(values="1;2" dur="0s")", R"(values="" dur="1s")", R"(values="1;x" dur="1s")",
          R"(values="1 1;2" dur="1s")", R"(values="1;2" keyTimes="0;.5;1" dur="1s")",
          R"(values="1;2" keyTimes="0;.5" dur="1s")", R"(values="1;2" begin="1s" dur="1s")"})
        EXPECT_EQ(StillWith(qPrintable(QString("<animate attributeName='r' %1/>").arg(pRest)), 0), "nothing")
            << pRest;
    for (const char* pElement :
         {R"(<animateMotion values="0 0;1 1" dur="1s"/>)", R"(<set to="1"/>)", "<rect>"})
        EXPECT_EQ(StillWith(pElement, 0), "nothing") << pElement;
    EXPECT_EQ(StillWith("<rect/>", 0, "other"), "nothing");
}
