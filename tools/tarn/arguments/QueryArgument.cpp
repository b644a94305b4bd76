#include "tools/tarn/arguments/QueryArgument.h"

#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tools/tarn/commandline/CommandFailure.h"

namespace tarn {

std::string QueryArgument::text() const
{
    std::string text;
    for (const std::string& word : words) {
        if (&word != &words.front())
            text += ' ';
        text += word;
    }
    return text;
}

std::optional<NSPredicate> QueryArgument::predicate() const
{
    OVNoteSearchManager::setAllowOCRSearch(ocr);
    try {
        return OVNoteSearchManager::predicateForSearchString(text());
    } catch (const NSException& exception) {
        throw CommandFailure(ExitCode::Usage,
            "QUERY makes no search; leave out @ocr, or the tags that begin with \"#*/\" or \"!\" (" + exception.reason()
                + ")");
    }
}

void QueryArgument::addTo(const Command& command)
{
    command.addArguments("QUERY", words, "What to find; several words are one query").required();
}

void QueryArgument::addOCRFlagTo(const Command& command)
{
    command.addFlag("--ocr", ocr, "Look into the recognised text of attachments as well");
}

} // namespace tarn
