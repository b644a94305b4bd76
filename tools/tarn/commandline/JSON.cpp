#include "tools/tarn/commandline/JSON.h"

namespace tarn {

std::string textOfJSON(const JSON& document)
{
    return document.dump(2, ' ', false, JSON::error_handler_t::replace);
}

void writeJSON(Output& output, const JSON& document)
{
    output.writeLine(textOfJSON(document));
}

} // namespace tarn
