#include "platform/coredata/NSManagedObjectModel.h"
#include "tools/modelgen/ClassWriter.h"
#include "tools/modelgen/KeyNameWriter.h"
#include "tools/modelgen/SchemaWriter.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

// Writes the generated bases of the record classes from a model file, or the description of its tables.

namespace tarn::modelgen {
namespace {

constexpr std::string_view kUsage = "usage: modelgen MODEL --classes FOLDER\n"
                                    "       modelgen MODEL --schema FILE\n";

std::vector<GeneratedFile> classFiles(const NSManagedObjectModel& model)
{
    std::vector<GeneratedFile> files;
    for (const NSEntityDescription* entity : model.entities()) {
        files.push_back(baseClassHeader(*entity));
        files.push_back(baseClassSource(*entity));
        files.push_back(objectIDHeader(*entity));
        files.push_back(attributeNamesHeader(*entity));
        if (!entity->relationships().empty())
            files.push_back(relationshipNamesHeader(*entity));
    }
    return files;
}

std::string contents(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

/// An equal file is left alone, so that nothing is compiled again for it.
bool write(const std::filesystem::path& file, const std::string& text)
{
    if (std::filesystem::exists(file) && contents(file) == text)
        return true;
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << text;
    stream.close();
    if (!stream)
        std::cerr << "modelgen: " << file.string() << " cannot be written\n";
    return !stream.fail();
}

int run(const std::vector<std::string>& arguments)
{
    if (arguments.size() != 3 || (arguments[1] != "--classes" && arguments[1] != "--schema")) {
        std::cerr << kUsage;
        return 2;
    }
    NSError error;
    auto model = NSManagedObjectModel::modelWithContentsOfFile(arguments[0], &error);
    if (!model) {
        std::cerr << "modelgen: " << error.localizedDescription() << '\n';
        return 1;
    }
    const std::filesystem::path target = arguments[2];
    if (arguments[1] == "--schema")
        return write(target, schemaDocument(*model)) ? 0 : 1;
    std::filesystem::create_directories(target);
    for (const GeneratedFile& file : classFiles(*model)) {
        if (!write(target / file.name, file.text))
            return 1;
    }
    return 0;
}

} // namespace
} // namespace tarn::modelgen

int main(int argumentCount, char** arguments)
{
    try {
        return tarn::modelgen::run({arguments + 1, arguments + argumentCount});
    } catch (const std::exception& error) {
        std::cerr << "modelgen: " << error.what() << '\n';
        return 1;
    }
}
