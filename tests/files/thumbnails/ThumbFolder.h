#pragma once

#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/ImageEncoding.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tests/platform/imaging/TestPictures.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <string>

namespace tarn {

/// A home folder with pictures and a folder of thumbnails in it. What is logged and not taken is a failure.
class ThumbFolder : public testing::Test {
protected:
    ThumbFolder()
    {
        std::filesystem::create_directories(pictures_);
        std::filesystem::create_directories(thumbs_);
        world_.setHomeDirectory(home_);
        world_.setVariable("XDG_DATA_HOME", std::nullopt);
        manager_ = OVThumbFileManager::initWithBaseURL(thumbs_);
    }
    ~ThumbFolder() override
    {
        EXPECT_EQ(log_.take(), std::vector<std::string>());
        std::filesystem::remove_all(home_);
    }

    /// A PNG or, by its name, a JPEG.
    std::filesystem::path aPicture(const std::string& name, const Bitmap& bitmap = aPhotograph(64, 48)) const
    {
        std::filesystem::path picture = pictures_ / name;
        const bool isJPEG = OVThumbFileManager::initWithBaseURL(thumbs_)->thumbExtensionForImageExtension(
                                picture.extension().string().substr(1))
            == "jpg";
        EXPECT_TRUE(isJPEG ? writeJPEG(bitmap, picture) : writePNG(bitmap, picture));
        return picture;
    }

    /// The names of all that lies in the folder of thumbnails, hidden files too.
    std::set<std::string> filesInFolder() const
    {
        std::set<std::string> names;
        for (const auto& item : std::filesystem::directory_iterator(thumbs_))
            names.insert(item.path().filename().string());
        return names;
    }

    const std::filesystem::path home_ = std::filesystem::temp_directory_path() / ("tarn thümbs " + newUUIDString());
    const std::filesystem::path pictures_ = home_ / "pictures";
    const std::filesystem::path thumbs_ = home_ / "thumbs";
    EnvironmentOverride world_;
    LogCapture log_;
    std::shared_ptr<OVThumbFileManager> manager_;
};

} // namespace tarn
