#include "tools/tarn/files/DurableFile.h"

#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tools/tarn/commandline/CommandFailure.h"

#include <array>
#include <fstream>
#include <span>
#include <string>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

void synchronize(const fs::path& path)
{
    NSError error;
    if (!NSFileManager::synchronizeItemsAtURLs(std::span(&path, 1), &error))
        throw CommandFailure(ExitCode::InputOutput, error.localizedDescription());
}

} // namespace

void writeDurably(const fs::path& file, std::string_view text)
{
    const fs::path unfinished
        = file.parent_path() / (std::string(NSFileManager::unfinishedPrefix) + file.filename().string());
    NSError error;
    if (!NSFileManager::removeItemAtURL(unfinished, &error)
        || !NSFileManager::createFileAtURL(unfinished, NSData::fromText(text), &error))
        throw CommandFailure(ExitCode::InputOutput, error.localizedDescription());
    synchronize(unfinished);
    std::error_code failure;
    fs::rename(unfinished, file, failure);
    if (failure)
        throw failureForSystemError("cannot write " + file.string(), failure.value());
    synchronize(file.parent_path());
}

void appendDurably(const fs::path& file, std::string_view text)
{
    {
        std::ofstream stream(file, std::ios::binary | std::ios::app);
        stream.write(text.data(), static_cast<std::streamsize>(text.size()));
        stream.flush();
        if (!stream)
            throw CommandFailure(ExitCode::InputOutput, "cannot write " + file.string());
    }
    synchronize(file);
}

} // namespace tarn
