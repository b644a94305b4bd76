#include "tests/tarn/export/ExportFixture.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace tarn::test {

namespace fs = std::filesystem;

namespace {

std::string bytesOfFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "-";
}

} // namespace

nlohmann::json ExportFixture::exported(std::vector<std::string> more) const
{
    more.insert(more.begin(), {"export", out().string()});
    return json(more);
}

std::string ExportFixture::contents(const std::string& name) const
{
    return bytesOfFile(out() / name);
}

std::string ExportFixture::text(const std::string& name) const
{
    const std::string file = contents(name);
    const std::size_t end = file.find("\n---\n");
    return end == std::string::npos ? "no front matter" : file.substr(end + 5);
}

void ExportFixture::write(const std::string& name, const std::string& bytes) const
{
    std::ofstream(out() / name, std::ios::binary) << bytes;
}

std::vector<std::string> ExportFixture::namesIn(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const auto& [name, bytes] : bytesIn(folder))
        names.push_back(name);
    return names;
}

std::map<std::string, std::string> ExportFixture::bytesIn(const fs::path& folder)
{
    std::map<std::string, std::string> bytes;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_directory() && !entry.path().filename().native().starts_with('.'))
            bytes[entry.path().lexically_relative(folder).string()] = bytesOfFile(entry.path());
    }
    return bytes;
}

std::map<std::string, fs::file_time_type> ExportFixture::dates() const
{
    std::map<std::string, fs::file_time_type> dates{{"", fs::last_write_time(out())}};
    for (const auto& entry : fs::recursive_directory_iterator(out()))
        dates[entry.path().string()] = fs::last_write_time(entry.path());
    return dates;
}

TarnResult ExportFixture::runOn(const fs::path& store, std::vector<std::string> command) const
{
    command.insert(command.begin(), {"--store", store.string()});
    TarnProcess process(command);
    process.setVariable("XDG_CACHE_HOME", (folder() / "cache").string());
    return process.finish();
}

nlohmann::json ExportFixture::jsonOn(const fs::path& store, std::vector<std::string> command) const
{
    command.insert(command.begin(), "--json");
    return nlohmann::json::parse(runOn(store, command).output, nullptr, false);
}

ExportFixture::Trip ExportFixture::tripWithFiles() const
{
    const std::string identifier = note("# Trip\n\n![](pic%20one.png) [x](<b.txt>)");
    output({"attach", "Trip", file("pic one.png", "no picture"), file("b.txt", "bytes")});
    return {identifier, place("pic one.png"), place("b.txt")};
}

std::string ExportFixture::place(const std::string& filename) const
{
    const nlohmann::json document = json({"files"});
    for (const auto& attached : document.at("files")) {
        if (attached.at("filename") == filename)
            return "attachments/" + attached.at("uniqueIdentifier").get<std::string>().substr(0, 8) + "/";
    }
    return "no such attachment";
}

} // namespace tarn::test
