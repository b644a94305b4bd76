#include "tests/platform/coredata/StoreFixture.h"

#include "tarnmodel/platform/foundation/system/NSUUID.h"

namespace tarn {

namespace {

constexpr std::string_view kModel = R"json({
  "version": "Library",
  "entities": [
    {"name": "Document",
     "attributes": [
       {"name": "title", "type": "string", "index": ["folded"]},
       {"name": "code", "type": "string", "index": ["value"]},
       {"name": "body", "type": "string", "storage": "large", "index": ["substring"]},
       {"name": "summary", "type": "string"},
       {"name": "raw", "type": "data"},
       {"name": "created", "type": "date"},
       {"name": "modified", "type": "date"},
       {"name": "flag", "type": "bool", "index": ["flag"]},
       {"name": "order", "type": "int16"},
       {"name": "size", "type": "int64"},
       {"name": "ratio", "type": "double"}
     ],
     "relationships": [
       {"name": "labels", "to": "Label", "many": true, "inverse": "documents", "owner": true},
       {"name": "attachments", "to": "Attachment", "many": true, "inverse": "document", "delete": "cascade"},
       {"name": "owner", "to": "Person", "inverse": "documents"},
       {"name": "record", "to": "Record", "inverse": "document"}
     ],
     "indexes": [{"columns": ["flag desc", "modified desc", "order"]}]},
    {"name": "Label",
     "attributes": [
       {"name": "name", "type": "string", "index": ["folded"]},
       {"name": "weight", "type": "int16"}
     ],
     "relationships": [
       {"name": "documents", "to": "Document", "many": true, "inverse": "labels"},
       {"name": "parent", "to": "Label", "inverse": "children"},
       {"name": "children", "to": "Label", "many": true, "inverse": "parent"}
     ]},
    {"name": "Attachment", "abstract": true,
     "attributes": [
       {"name": "name", "type": "string"},
       {"name": "caption", "type": "string", "storage": "large", "index": ["substring"]},
       {"name": "unused", "type": "bool"}
     ],
     "relationships": [{"name": "document", "to": "Document", "inverse": "attachments"}]},
    {"name": "Picture", "parent": "Attachment",
     "attributes": [{"name": "width", "type": "int64"}]},
    {"name": "Recording", "parent": "Attachment",
     "attributes": [
       {"name": "seconds", "type": "double"},
       {"name": "transcript", "type": "string", "storage": "large"}
     ]},
    {"name": "Person",
     "attributes": [{"name": "name", "type": "string", "index": ["value"]}],
     "relationships": [{"name": "documents", "to": "Document", "many": true, "inverse": "owner"}]},
    {"name": "Record",
     "attributes": [
       {"name": "payload", "type": "data", "storage": "large"},
       {"name": "state", "type": "int16"}
     ],
     "relationships": [{"name": "document", "to": "Document", "inverse": "record", "column": true}]}
  ]
})json";

} // namespace

std::shared_ptr<const NSManagedObjectModel> storeTestModel()
{
    static const std::shared_ptr<const NSManagedObjectModel> model = [] {
        NSError error;
        std::shared_ptr<const NSManagedObjectModel> read = NSManagedObjectModel::modelWithText(kModel, &error);
        EXPECT_TRUE(read) << error;
        return read;
    }();
    return model;
}

// Folder --------------------------------------------------------------------------------------------------------------

TestFolder::TestFolder() : path_(Environment::current().temporaryDirectory() / ("tarn störe " + newUUIDString()))
{
    std::filesystem::create_directories(path_);
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

// Rows ----------------------------------------------------------------------------------------------------------------

StoreRow makeRow(
    const NSEntityDescription& entity, std::int64_t key, const std::vector<std::pair<std::string, Value>>& values)
{
    StoreRow row{&entity, key, 1, PropertyValues(entity)};
    for (const auto& [name, value] : values) {
        const NSPropertyDescription* property = entity.propertyNamed(name);
        EXPECT_TRUE(property) << name;
        if (!property)
            continue;
        if (!property->isRelationship())
            row.values.setAttributeValue(property->index(), value);
        else if (value.isNil())
            row.values.setNil(property->index());
        else
            row.values.setInteger(property->index(), value.asInteger());
    }
    return row;
}

// Store ---------------------------------------------------------------------------------------------------------------

OpenStore::OpenStore(StoreType type, const std::filesystem::path& file, const StoreOptions& options)
    : coordinator_(std::make_shared<NSPersistentStoreCoordinator>(storeTestModel()))
{
    coordinator_->addPersistentStoreWithType(type, file, options, &error_);
    store_ = coordinator_->rowStore();
}

const NSEntityDescription& OpenStore::entity(std::string_view name) const
{
    return *storeTestModel()->entityNamed(name);
}

const NSRelationshipDescription& OpenStore::relationship(std::string_view entity, std::string_view name) const
{
    return *this->entity(entity).relationshipNamed(name);
}

std::int64_t OpenStore::newKey(std::string_view entity) const
{
    std::int64_t key = 0;
    NSError error;
    EXPECT_TRUE(store_->reserveKeys(this->entity(entity), 1, key, &error)) << error;
    return key;
}

std::int64_t OpenStore::insert(std::string_view entity, const std::vector<std::pair<std::string, Value>>& values) const
{
    NSError error;
    auto transaction = store_->beginTransaction(&error);
    EXPECT_TRUE(transaction) << error;
    if (!transaction)
        return 0;
    const std::int64_t key = newKey(entity);
    EXPECT_TRUE(transaction->insertRow(makeRow(this->entity(entity), key, values), &error)) << error;
    EXPECT_TRUE(transaction->commit(&error)) << error;
    return key;
}

void OpenStore::join(
    std::string_view entity, std::string_view relationship, std::int64_t owner, std::int64_t member) const
{
    NSError error;
    auto transaction = store_->beginTransaction(&error);
    const JoinChange change{&this->relationship(entity, relationship), owner, member, true};
    EXPECT_TRUE(transaction->changeJoins({&change, 1}, &error)) << error;
    EXPECT_TRUE(transaction->commit(&error)) << error;
}

bool OpenStore::update(std::string_view entity, std::int64_t key, const std::string& name, const Value& value) const
{
    StoreRow changed = makeRow(this->entity(entity), key, {{name, value}});
    changed.version = row(entity, key).version;
    NSError error;
    auto transaction = store_->beginTransaction(&error);
    const PropertyMask mask = propertyBit(this->entity(entity).propertyNamed(name)->index());
    const bool written = transaction->updateRow(changed, mask, &error) == RowWriteResult::Written;
    return transaction->commit(&error) && written;
}

void OpenStore::remove(std::string_view entity, std::int64_t key) const
{
    NSError error;
    auto transaction = store_->beginTransaction(&error);
    EXPECT_EQ(transaction->deleteRow(this->entity(entity), key, 0, &error), RowWriteResult::Written) << error;
    EXPECT_TRUE(transaction->commit(&error)) << error;
}

StoreRow OpenStore::row(std::string_view entity, std::int64_t key, RowContents contents) const
{
    std::vector<StoreRow> rows;
    NSError error;
    EXPECT_TRUE(store_->rowsForKeys(this->entity(entity), {&key, 1}, contents, rows, &error)) << error;
    return rows.empty() ? StoreRow{} : rows.front();
}

Value OpenStore::value(std::string_view entity, std::int64_t key, std::string_view name) const
{
    const StoreRow found = row(entity, key);
    if (!found.entity)
        return {};
    const NSPropertyDescription& property = *found.entity->propertyNamed(name);
    if (!property.isRelationship())
        return found.values.attributeValue(property.index());
    return found.values.isNil(property.index()) ? Value() : Value(found.values.integer(property.index()));
}

std::vector<std::int64_t> OpenStore::related(std::string_view entity, std::string_view name, std::int64_t key) const
{
    std::vector<RelatedKey> related;
    NSError error;
    EXPECT_TRUE(store_->relatedKeys(relationship(entity, name), key, related, &error)) << error;
    std::vector<std::int64_t> keys;
    for (const RelatedKey& one : related)
        keys.push_back(one.key);
    return keys;
}

std::vector<std::int64_t> OpenStore::keys(std::string_view entity, const std::optional<NSPredicate>& predicate,
    const std::vector<NSSortDescriptor>& sort, std::size_t limit, std::size_t offset) const
{
    StoreFetch fetch;
    fetch.entity = &this->entity(entity);
    fetch.predicate = predicate ? &*predicate : nullptr;
    fetch.sortDescriptors = sort;
    fetch.limit = limit;
    fetch.offset = offset;
    fetch.contents = RowContents::Keys;
    std::vector<StoreRow> rows;
    NSError error;
    EXPECT_TRUE(store_->fetch(fetch, rows, &error)) << error;
    std::vector<std::int64_t> keys;
    for (const StoreRow& row : rows)
        keys.push_back(row.key);
    return keys;
}

std::size_t OpenStore::count(std::string_view entity, std::string_view format) const
{
    const NSPredicate predicate = NSPredicate::predicateWithFormat(format);
    StoreFetch fetch;
    fetch.entity = &this->entity(entity);
    fetch.predicate = &predicate;
    std::size_t count = 0;
    NSError error;
    EXPECT_TRUE(store_->count(fetch, count, &error)) << error;
    return count;
}

std::vector<std::string> OpenStore::problems() const
{
    std::vector<std::string> problems;
    NSError error;
    EXPECT_TRUE(store_->checkIntegrity(problems, &error)) << error;
    return problems;
}

} // namespace tarn
