#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tools/modelgen/ClassWriter.h"
#include "tools/modelgen/GeneratedFile.h"
#include "tools/modelgen/KeyNameWriter.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

// Writes the generated bases of the record classes from a model file.

namespace tarn::modelgen {
namespace {

constexpr std::string_view kUsage = "usage: modelgen MODEL FOLDER\n";

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

int run(const std::vector<std::string>& arguments)
{
    if (arguments.size() != 2) {
        std::cerr << kUsage;
        return 2;
    }
    NSError error;
    auto model = NSManagedObjectModel::modelWithContentsOfFile(arguments[0], &error);
    if (!model) {
        std::cerr << "modelgen: " << error.localizedDescription() << '\n';
        return 1;
    }
    const std::filesystem::path folder = arguments[1];
    std::filesystem::create_directories(folder);
    for (const GeneratedFile& file : classFiles(*model)) {
        if (!writeFile(folder / file.name, file.text)) {
            std::cerr << "modelgen: " << (folder / file.name).string() << " cannot be written\n";
            return 1;
        }
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
