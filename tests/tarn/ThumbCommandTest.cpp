#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageEncoding.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tests/tarn/TarnCommandTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <filesystem>

namespace tarn::test {

namespace fs = std::filesystem;

class ThumbCommand : public TarnCommandTest {
protected:
    /// A red picture of 40 by 20 pixels, of which the five upper and lower rows are transparent.
    fs::path picture(const std::string& name) const
    {
        Bitmap bitmap(40, 20, Bitmap::Alpha::Premultiplied);
        for (int row = 5; row < 15; ++row)
            for (int column = 0; column < 40; ++column)
                std::ranges::copy(std::to_array<std::uint8_t>({255, 0, 0, 255}), bitmap.row(row) + column * 4);
        fs::create_directories((folder() / name).parent_path());
        EXPECT_TRUE(writePNG(bitmap, folder() / name));
        return folder() / name;
    }
    /// "20x10"
    std::string sizeOf(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.begin(), "thumb");
        const TarnResult result = run([&] {
            arguments.insert(arguments.begin(), "--json");
            return arguments;
        }());
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        const auto document = nlohmann::json::parse(result.output, nullptr, false);
        const auto header = document.is_object() ? readImageHeader(std::string(document.at("path"))) : std::nullopt;
        if (!header || header->width != document.at("width") || header->height != document.at("height"))
            return "none";
        return std::to_string(header->width) + "x" + std::to_string(header->height);
    }
};

TEST_F(ThumbCommand, MakesThumbnailsAsItIsTold)
{
    const auto path = picture("p.png");
    EXPECT_EQ(sizeOf({path, "--size", "20x20"}), "20x10");
    EXPECT_EQ(sizeOf({path, "--size", "20x20", "--contain"}), "20x20");
    EXPECT_EQ(sizeOf({path, "--size", "20x30", "--cover", "--align", "0.5,1"}), "20x30");
    EXPECT_EQ(sizeOf({path, "--size", "20x30", "--no-ratio"}), "20x30");
    EXPECT_EQ(sizeOf({path, "--size", "20x20", "--trim"}), "20x5");
    EXPECT_EQ(sizeOf({path, "--trim=2", "--size", "20x20"}), "20x7");
    EXPECT_EQ(sizeOf({path, "--size", "20x20"}), "20x10");
}

TEST_F(ThumbCommand, TellsPathSizeAndTime)
{
    const auto path = picture("p.png");
    const auto document = nlohmann::ordered_json::parse(run({"--json", "thumb", path, "--size", "20x20"}).output);
    EXPECT_EQ(keysOf(document), (std::vector<std::string>{"path", "width", "height", "seconds"}));
    const std::string first = document.at("path");
    EXPECT_EQ(json({"thumb", path, "--size", "20x20"}).at("path"), first);
    EXPECT_THAT(output({"thumb", path, "--size", "20x20"}), testing::HasSubstr("  20x10  "));
    EXPECT_FALSE(fs::exists(store()));
}

TEST_F(ThumbCommand, PaintsTheBackgroundThatIsAskedFor)
{
    const auto path = picture("p.png");
    const auto colourOf = [&](const std::string& colour) {
        const auto document = json({"thumb", path, "--size", "40x20", "--background", colour});
        const auto bitmap = loadImage(std::string(document.at("path")));
        return bitmap ? std::vector<int>(bitmap->row(0), bitmap->row(0) + 4) : std::vector<int>();
    };
    EXPECT_EQ(colourOf("00ff80"), (std::vector<int>{0, 255, 128, 255}));
    EXPECT_EQ(colourOf("#0000FF"), (std::vector<int>{0, 0, 255, 255}));
    EXPECT_EQ(colourOf("00ff80"), (std::vector<int>{0, 255, 128, 255}));
}

TEST_F(ThumbCommand, TakesAnImageOfANote)
{
    note("# N\n\n![](b.png) ![](a.png)");
    output({"attach", "N", picture("a.png"), picture("b.png"), file("c.txt", "text")});
    const auto first = json({"files", "N"}).at("files").at(0);
    EXPECT_EQ(first.at("kind"), "image");
    EXPECT_EQ(first.at("width"), 40);
    EXPECT_EQ(first.at("height"), 20);
    EXPECT_EQ(sizeOf({"N", "--size", "10x10"}), "10x5");
    EXPECT_EQ(json({"thumb", "N", "--size", "10x10"}).at("path"),
        json({"thumb", "N", "b.png", "--size", "10x10"}).at("path"));
    EXPECT_NE(json({"thumb", "N", "--size", "10x10"}).at("path"),
        json({"thumb", "N", "a.png", "--size", "10x10"}).at("path"));
    EXPECT_EQ(run({"thumb", "N", "c.txt", "--size", "10x10"}).exitCode, 1);
    EXPECT_EQ(run({"thumb", "N", "d.png", "--size", "10x10"}).exitCode, 1);
    note("# No image");
    EXPECT_EQ(run({"thumb", "No image", "--size", "10x10"}).exitCode, 1);
}

TEST_F(ThumbCommand, WritesWhereItIsToldAndNeverOverAnotherFile)
{
    const auto path = picture("p.png");
    const std::string place = (folder() / "out.png").string();
    EXPECT_EQ(sizeOf({path, "--size", "20x20", "--output", place}), "20x10");
    EXPECT_EQ(run({"thumb", path, "--size", "10x10", "--output", place}).exitCode, 6);
    EXPECT_EQ(readImageHeader(place)->width, 20);
    EXPECT_EQ(run({"thumb", path, "--size", "10x10", "--output", folder() / "out.jpg"}).exitCode, 2);
    EXPECT_EQ(run({"thumb", path, "--size", "10x10", "--output", folder() / "none" / "out.png"}).exitCode, 6);
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder()))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, testing::UnorderedElementsAre("p.png", "out.png"));
}

TEST_F(ThumbCommand, RefusesWhatHasNoSense)
{
    const std::string path = picture("p.png").string();
    const std::vector<std::vector<std::string>> wrong{{}, {"--size", "20"}, {"--size", "0x5"}, {"--size", "axb"},
        {"--size", "20x20x20"}, {"--size", "-1x5"}, {"--size", "1000001x5"}, {"--size", "5x5", "--align", "1"},
        {"--size", "5x5", "--align", "2,0"}, {"--size", "5x5", "--align", "nan,0"}, {"--size", "5x5", "--trim", "x"},
        {"--size", "5x5", "--background", "red"}, {"--size", "5x5", "--background", "12345"},
        {"--size", "5x5", "--output", ""}, {"--size", "5x5", "--contain", "--cover"}};
    for (const std::vector<std::string>& options : wrong) {
        std::vector<std::string> arguments{"thumb", path};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const TarnResult result = run(arguments);
        EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(options) << result.errors;
        EXPECT_EQ(std::ranges::count(result.errors, '\n'), 1) << result.errors;
    }
}

TEST_F(ThumbCommand, SaysWhyThereIsNone)
{
    EXPECT_EQ(run({"thumb", file("n.png", "no picture"), "--size", "5x5"}).exitCode, 1);
    EXPECT_EQ(run({"thumb", "nothing", "--size", "5x5"}).exitCode, 1);
    const auto path = picture("p.png");
    EXPECT_EQ(run({"thumb", path, "--size", "1x5000"}).exitCode, 1) << "less than a pixel is left";
    // Its header says 20,000 by 20,000 pixels.
    const std::string header("BM\x36\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x20\x4E\0\0\x20\x4E\0\0\1\0\x18\0", 30);
    const TarnResult huge = run({"thumb", file("huge.bmp", header + std::string(2000, '\0')), "--size", "5x5"});
    EXPECT_EQ(huge.exitCode, 1);
    EXPECT_THAT(huge.errors, testing::HasSubstr("20000 x 20000"));
}

} // namespace tarn::test
