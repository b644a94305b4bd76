#include "tests/platform/coredata/context/RandomLibrary.h"

#include <map>

namespace tarn {

namespace {

constexpr const char* texts[] = {"", "a", "A", "ä", "Äpfel", "apfel", "work", "Work/acme", "work/acme/x", "か", "が",
    "Straße", "STRASSE", "a%b_c", "it's \"x\"", "ﬁn"};

} // namespace

Value RandomLibrary::randomText()
{
    return chance(20) ? Value() : Value(texts[below(std::size(texts))]);
}

std::string RandomLibrary::pick(std::initializer_list<const char*> choices)
{
    return choices.begin()[below(choices.size())];
}

NSManagedObject* RandomLibrary::any(std::string_view entity)
{
    NSFetchRequest request(*context_->managedObjectModel().entityNamed(entity));
    const auto records = context_->executeFetchRequest(request);
    return records.empty() ? nullptr : records[below(records.size())];
}

void RandomLibrary::setRandomValue(NSManagedObject& record)
{
    const auto attributes = record.entity().attributes();
    const NSAttributeDescription& attribute = *attributes[below(attributes.size())];
    Value value;
    if (!chance(20))
        switch (attribute.type()) {
        case NSAttributeType::Boolean:
            value = Value(chance(50));
            break;
        case NSAttributeType::Integer16:
        case NSAttributeType::Integer64:
            value = Value(static_cast<std::int64_t>(below(5)) - 1);
            break;
        case NSAttributeType::Double:
            value = Value(static_cast<double>(below(4)) / 2);
            break;
        case NSAttributeType::String:
            value = randomText();
            break;
        case NSAttributeType::Date:
            value = Value(dateWithMicrosecondsSinceReferenceDate(static_cast<std::int64_t>(below(3)) * 1500000));
            break;
        case NSAttributeType::Data:
            value = Value(NSData::fromText(texts[below(std::size(texts))]));
            break;
        }
    record.setValueForKey(attribute.name(), value);
}

void RandomLibrary::tie(NSManagedObject& record)
{
    const auto relationships = record.entity().relationships();
    const NSRelationshipDescription& relationship = *relationships[below(relationships.size())];
    NSManagedObject* target = any(relationship.destinationEntity().name());
    if (!relationship.isToMany())
        record.setToOneAt(relationship.index(), chance(25) ? nullptr : target);
    else if (target && chance(30))
        record.toManyAt(relationship.index()).remove(*target);
    else if (target)
        record.toManyAt(relationship.index()).add(*target);
}

void RandomLibrary::populate(std::size_t count)
{
    std::vector<NSManagedObject*> made;
    for (std::size_t number = 0; number < count; ++number)
        made.push_back(&context_->insertObject(pick({"Book", "Book", "Shelf", "Chapter", "Cover", "Map", "Disc"})));
    for (NSManagedObject* record : made) {
        for (int times = 0; times < 5; ++times)
            setRandomValue(*record);
        tie(*record);
        tie(*record);
    }
}

void RandomLibrary::change(std::size_t count)
{
    for (std::size_t number = 0; number < count; ++number) {
        const std::size_t choice = below(10);
        if (choice == 0) {
            populate(1);
            continue;
        }
        NSManagedObject* record = any(pick({"Book", "Book", "Shelf", "Chapter", "Cover", "Item"}));
        if (!record)
            continue;
        // A book that still lends things cannot be saved as deleted.
        if (choice == 1 && record->entity().name() != "Book")
            context_->deleteObject(*record);
        else if (choice < 6)
            setRandomValue(*record);
        else
            tie(*record);
    }
}

std::string RandomLibrary::bookLeaf(const std::string& prefix, std::vector<Value>& arguments)
{
    switch (below(9)) {
    case 0:
        arguments.push_back(randomText());
        return prefix + pick({"title", "code", "body"}) + pick({" ==", " !=", " <", " >="})
            + pick({" %@", "[cd] %@", "[c] %@", "[d] %@"});
    case 1:
        arguments.emplace_back(texts[below(std::size(texts))]);
        return prefix + pick({"title", "body"}) + pick({" CONTAINS", " BEGINSWITH", " ENDSWITH", " LIKE"})
            + pick({"[cd] %@", " %@"});
    case 2:
        return prefix + pick({"pages", "copies", "weight"}) + pick({" == ", " != ", " < ", " <= ", " > ", " >= "})
            + pick({"0", "1", "-1", "0.5", "nil"});
    case 3:
        return prefix + "lent" + pick({" == YES", " == NO", " != YES", " == nil", " != nil"});
    case 4:
        arguments.emplace_back(dateWithMicrosecondsSinceReferenceDate(static_cast<std::int64_t>(below(3)) * 1500000));
        return prefix + "printed" + pick({" == %@", " < %@", " >= %@", " != %@"});
    case 5:
        return prefix + pick({"title", "printed", "weight", "cover", "stamp"}) + pick({" == nil", " != nil"});
    case 6:
        arguments.push_back(Value(Value::Array{randomText(), randomText(), Value("a")}));
        return prefix + pick({"title", "code"}) + pick({" IN %@", " IN[cd] %@"});
    case 7:
        return prefix + "pages BETWEEN {0, " + pick({"1", "2"}) + "}";
    default:
        return prefix + "title MATCHES" + pick({"[cd]", ""}) + " '" + pick({".*", "(?i)A.*", "work(/.*)?", "[a-z]+"})
            + "'";
    }
}

std::string RandomLibrary::leaf(std::vector<Value>& arguments)
{
    switch (below(12)) {
    case 0:
        arguments.push_back(randomText());
        return pick({"ANY", "ALL", "NONE"}) + " shelves.name"
            + pick({" ==[cd] %@", " == %@", " != %@", " CONTAINS[cd] %@"});
    case 1:
        arguments.emplace_back(any("Shelf"));
        return pick({"%@ IN shelves", "ANY shelves == %@", "shelves CONTAINS %@", "NONE shelves == %@"});
    case 2:
        return pick({"shelves", "chapters", "items"}) + ".@count"
            + pick({" == 0", " != 0", " > 0", " > 1", " == 1", " <= 1"});
    case 3:
        arguments.push_back(randomText());
        return "SUBQUERY(shelves, $s, $s.name" + pick({" ==[cd] %@", " BEGINSWITH[cd] %@"}) + " AND $s.floor"
            + pick({" > 0", " == 0"}) + ").@count" + pick({" == 0", " != 0", " > 1"});
    case 4:
        return "SUBQUERY(chapters, $c, $c.number" + pick({" > 0", " == nil"}) + " OR $c.book.lent == YES).@count"
            + pick({" == 0", " > 0"});
    case 5:
        arguments.push_back(randomText());
        return "cover.color" + pick({" == %@", " !=[cd] %@", " ==[cd] %@"});
    case 6:
        return pick({"ANY chapters.number > 1", "ALL chapters.number == 0", "NONE chapters.heading == nil",
            "ANY items.label == 'a'"});
    default:
        return bookLeaf("", arguments);
    }
}

/// Of the entities around a book: what they say themselves, and what their book says.
std::string RandomLibrary::leafOf(const std::string& entity, std::vector<Value>& arguments)
{
    if (entity == "Shelf") {
        if (chance(40))
            return pick({"floor > 0", "floor == -1", "books.@count > 1", "books.@count == 0",
                "SUBQUERY(books, $b, $b.lent == YES AND $b.pages > 0).@count > 0", "ANY books.cover.color == 'a'"});
        arguments.push_back(randomText());
        return pick({"name ==[cd] %@", "ANY books.title == %@", "NONE books.body ==[cd] %@", "ANY books.code == %@"});
    }
    if (chance(50))
        return bookLeaf("book.", arguments);
    if (chance(30)) {
        arguments.emplace_back(any("Book"));
        return pick({"book == %@", "book != %@", "NOT (book == %@)"});
    }
    if (entity == "Chapter" && chance(50))
        return pick({"number > 0", "number == nil", "book.items.@count > 0", "book.shelves.@count == 0"});
    if (entity == "Map" && chance(50))
        return pick({"scale > 0", "scale == nil", "scale < 2"});
    arguments.push_back(randomText());
    const std::string own = entity == "Chapter" ? "heading" : entity == "Cover" ? "color" : "label";
    return pick({own.c_str(), "book.cover.color"}) + pick({" == %@", " !=[cd] %@"});
}

std::string RandomLibrary::term(int depth, std::vector<Value>& arguments)
{
    if (depth == 0 || chance(35))
        return entity_ == "Book" ? leaf(arguments) : leafOf(entity_, arguments);
    if (chance(25))
        return "NOT (" + term(depth - 1, arguments) + ")";
    const std::string joint = pick({" AND ", " OR "});
    std::string text = "(" + term(depth - 1, arguments);
    for (std::size_t more = 1 + below(2); more > 0; --more) {
        text += joint;
        text += term(depth - 1, arguments);
    }
    return text + ")";
}

NSPredicate RandomLibrary::predicate()
{
    std::vector<Value> arguments;
    const std::string format = term(3, arguments);
    return NSPredicate::predicateWithFormatAndArguments(format, arguments);
}

std::vector<NSSortDescriptor> RandomLibrary::order()
{
    // The order of the index, in which many are equal, forwards and backwards.
    const bool ascending = chance(50);
    if (chance(25))
        return {{"lent", ascending}, {"printed", ascending}};
    std::vector<NSSortDescriptor> descriptors;
    for (std::size_t count = below(3); count > 0; --count)
        descriptors.push_back({pick({"title", "pages", "lent", "printed", "weight", "cover.color"}), chance(50)});
    return descriptors;
}

NSFetchRequest RandomLibrary::request()
{
    static const std::map<std::string, std::vector<const char*>> keys = {
        {"Book", {"title", "pages", "lent", "weight", "cover.color"}},
        {"Shelf", {"name", "floor"}},
        {"Chapter", {"heading", "number", "book.title", "book.pages", "book.cover.color"}},
        {"Cover", {"color", "book.title", "book.printed"}},
        {"Item", {"label", "book.title", "book.cover.color"}},
        {"Map", {"scale", "book.pages"}},
        {"Disc", {"label", "book.weight"}},
    };
    entity_ = pick({"Book", "Book", "Shelf", "Chapter", "Cover", "Item", "Map", "Disc"});
    NSFetchRequest request(*context_->managedObjectModel().entityNamed(entity_));
    std::vector<Value> arguments;
    const std::string format = term(2, arguments);
    request.predicate = NSPredicate::predicateWithFormatAndArguments(format, arguments);
    for (std::size_t count = below(3); count > 0; --count)
        request.sortDescriptors.push_back({pick(keys.at(entity_)), chance(50)});
    request.includesSubentities = entity_ != "Item" || chance(80);
    request.fetchLimit = chance(50) ? 1 + below(5) : 0;
    request.fetchOffset = chance(50) ? below(4) : 0;
    entity_ = "Book";
    return request;
}

} // namespace tarn
