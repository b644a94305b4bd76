#include "tools/tarn/arguments/TagArgument.h"

#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/tags/TagPredicates.h"
#include "tools/tarn/commandline/CommandFailure.h"

namespace tarn {

std::string tagNameForArgument(const std::string& argument)
{
    std::string name = CVKHashtag::sanitizeTagName(argument);
    if (name.empty())
        throw CommandFailure(ExitCode::Usage, "\"" + argument + "\" cannot be the name of a tag");
    return name;
}

OVNoteTag& tagForArgument(const std::string& argument, StoreSession& session)
{
    const std::string name = tagNameForArgument(argument);
    const auto tags = session.tags(predicateForTagNamed(name));
    if (tags.empty())
        throw CommandFailure(ExitCode::Failed, "there is no tag \"" + name + "\"; 'tarn tags --all' shows all");
    return *tags.front();
}

} // namespace tarn
