#include "examples/sync-folder/RecordFile.h"

#include <istream>
#include <ostream>
#include <stdexcept>

namespace tarn::syncfolder {

namespace {

/// One line, whatever the bytes are.
std::string escaped(std::string_view bytes)
{
    std::string line;
    for (const char byte : bytes) {
        if (byte == '\n')
            line += "\\n";
        else if (byte == '\\')
            line += "\\\\";
        else
            line += byte;
    }
    return line;
}

std::string unescaped(std::string_view line)
{
    std::string bytes;
    for (std::size_t index = 0; index < line.size(); ++index) {
        if (line[index] != '\\' || index + 1 == line.size()) {
            bytes += line[index];
            continue;
        }
        ++index;
        bytes += line[index] == 'n' ? '\n' : line[index];
    }
    return bytes;
}

std::string lineOf(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return value.asBool() ? "b 1" : "b 0";
    case Value::Kind::Date:
        return "t " + std::to_string(microsecondsSince1970(value.asDate()));
    case Value::Kind::Data:
        return "x " + escaped(value.asData().text());
    case Value::Kind::String:
        return "s " + escaped(value.asString());
    default:
        throw std::runtime_error("a value of another kind");
    }
}

Value valueOf(char kind, std::string_view text)
{
    switch (kind) {
    case 'b':
        return text == "1";
    case 't':
        return dateWithMicrosecondsSince1970(std::stoll(std::string(text)));
    case 'x':
        return NSData::fromText(unescaped(text));
    case 's':
        return unescaped(text);
    default:
        throw std::runtime_error("a value of another kind");
    }
}

} // namespace

void writeRecord(std::ostream& file, const CKRecord& record)
{
    file << record.recordChangeTag.value_or("") << '\n';
    for (const std::string& key : record.allKeys())
        file << key << ' ' << lineOf(record.valueForKey(key)) << '\n';
}

CKRecord readRecord(std::istream& file, const std::string& recordName)
{
    CKRecord record("Note", {recordName, {"Notes"}});
    std::string line;
    std::getline(file, line);
    record.recordChangeTag = line;
    while (std::getline(file, line)) {
        const std::size_t space = line.find(' ');
        if (space == std::string::npos || space + 3 > line.size() || line[space + 2] != ' ')
            throw std::runtime_error("the record " + recordName + " is damaged");
        record.setValueForKey(
            line.substr(0, space), valueOf(line[space + 1], std::string_view(line).substr(space + 3)));
    }
    return record;
}

} // namespace tarn::syncfolder
