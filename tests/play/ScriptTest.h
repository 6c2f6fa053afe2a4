#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "play/Player.h"
#include "play/ScriptedPlatform.h"
#include "support/Pictures.h"
#include "support/TempFolder.h"

// Plays scripts in a folder of its own, each in a program of its own.
class ScriptTest : public testing::Test {
  protected:
    struct CResult {
        bool bDone = false;
        std::string strOut;
        std::string strErr;
    };

    ScriptTest() { std::filesystem::current_path(m_folder.Path()); }
    ~ScriptTest() override { std::filesystem::current_path(m_pathBefore); }

    CResult Play(const std::string& strScript, bool bStrict = false) {
        std::istringstream script(strScript);
        std::ostringstream out, err;
        CScriptedPlatform platform;
        CPlayer player(platform, out, err);
        player.SetStrict(bStrict);
        const bool bDone = player.Play(script, "test");
        return {bDone, out.str(), err.str()};
    }
    // What a script that can be done prints.
    std::string Print(const std::string& strScript) {
        const CResult result = Play(strScript);
        EXPECT_TRUE(result.bDone) << strScript;
        EXPECT_EQ(result.strErr, "") << strScript;
        return result.strOut;
    }
    void MakePicture(const std::string& strName, int nWidth, int nHeight, int nBlue = 0) {
        EXPECT_TRUE(NumberedImage(nWidth, nHeight, nBlue).Save(strName, FindImageTypeOfName(strName)));
    }
    static CPixels PixelsOf(const std::string& strName) {
        return CxImage(strName, strName.ends_with(".ppm") ? ImageType::kPnm : FindImageTypeOfName(strName))
            .Pixels();
    }

    std::filesystem::path m_pathBefore = std::filesystem::current_path();
    CTempFolder m_folder;
};
