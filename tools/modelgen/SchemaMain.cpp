#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tools/modelgen/GeneratedFile.h"
#include "tools/modelgen/SchemaWriter.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

// Writes the document that describes the records of a model and how they lie in tables.

namespace {

int run(const std::vector<std::string>& arguments)
{
    if (arguments.size() != 2) {
        std::cerr << "usage: schemagen MODEL FILE\n";
        return 2;
    }
    tarn::NSError error;
    auto model = tarn::NSManagedObjectModel::modelWithContentsOfFile(arguments[0], &error);
    if (!model) {
        std::cerr << "schemagen: " << error.localizedDescription() << '\n';
        return 1;
    }
    if (!tarn::modelgen::writeFile(arguments[1], tarn::modelgen::schemaDocument(*model))) {
        std::cerr << "schemagen: " << arguments[1] << " cannot be written\n";
        return 1;
    }
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    try {
        return run({arguments + 1, arguments + argumentCount});
    } catch (const std::exception& error) {
        std::cerr << "schemagen: " << error.what() << '\n';
        return 1;
    }
}
