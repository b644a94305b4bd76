#include "tarnmodel/platform/coredata/PropertyValues.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <cmath>
#include <limits>

namespace tarn {
namespace {

class PropertyValuesOfADocument : public testing::Test {
protected:
    const NSEntityDescription& entity = *storeTestModel()->entityNamed("Document");
    PropertyIndex title = entity.propertyNamed("title")->index();
    PropertyIndex order = entity.propertyNamed("order")->index();
    PropertyIndex size = entity.propertyNamed("size")->index();
    PropertyIndex ratio = entity.propertyNamed("ratio")->index();
    PropertyIndex flag = entity.propertyNamed("flag")->index();
    PropertyIndex owner = entity.propertyNamed("owner")->index();
    PropertyValues values{entity};
};

TEST_F(PropertyValuesOfADocument, BeginLoadedAndNil)
{
    for (const NSPropertyDescription* property : entity.properties()) {
        EXPECT_TRUE(values.isLoaded(property->index())) << property->name();
        EXPECT_TRUE(values.isNil(property->index())) << property->name();
    }
    EXPECT_TRUE(PropertyValues().isEmpty());
}

TEST_F(PropertyValuesOfADocument, ShareStringsBetweenCopies)
{
    values.setBytes(title, "a title");
    const PropertyValues copy = values;
    EXPECT_EQ(copy.bytes(title).data(), values.bytes(title).data());
    values.setBytes(title, "another");
    EXPECT_EQ(copy.bytes(title), "a title");
    EXPECT_EQ(values.bytes(title), "another");
}

TEST_F(PropertyValuesOfADocument, TakeBytesThatLieInTheOldOnes)
{
    values.setBytes(title, "a title");
    values.setBytes(title, values.bytes(title).substr(2));
    EXPECT_EQ(values.bytes(title), "title");
}

TEST_F(PropertyValuesOfADocument, MoveAndAssignWithoutLosingValues)
{
    values.setBytes(title, "x");
    values.setInteger(owner, 9);
    PropertyValues moved = std::move(values);
    PropertyValues assigned;
    assigned = moved;
    assigned = std::move(assigned);
    EXPECT_EQ(assigned.bytes(title), "x");
    EXPECT_EQ(assigned.integer(owner), 9);
    assigned.assign(title, assigned);
    EXPECT_EQ(assigned.bytes(title), "x");
}

TEST_F(PropertyValuesOfADocument, AssignTakesOverLoadednessToo)
{
    PropertyValues other(entity);
    other.setUnloaded(title);
    values.setBytes(title, "x");
    values.assign(title, other);
    EXPECT_FALSE(values.isLoaded(title));
    EXPECT_TRUE(values.isNil(title));
}

TEST_F(PropertyValuesOfADocument, EqualByContent)
{
    PropertyValues other(entity);
    EXPECT_TRUE(values.equals(title, other));
    values.setBytes(title, "");
    EXPECT_FALSE(values.equals(title, other)) << "an empty string is not nil";
    other.setBytes(title, "");
    EXPECT_TRUE(values.equals(title, other));
    other.setUnloaded(title);
    EXPECT_FALSE(values.equals(title, other));
}

TEST_F(PropertyValuesOfADocument, TakeTheNearestNumberThatFitsTheAttribute)
{
    values.setAttributeValue(order, 65'537);
    EXPECT_EQ(values.attributeValue(order), Value(32'767));
    values.setAttributeValue(order, -1e300);
    EXPECT_EQ(values.attributeValue(order), Value(-32'768));
    values.setAttributeValue(size, 1e300);
    EXPECT_EQ(values.attributeValue(size), Value(std::numeric_limits<std::int64_t>::max()));
    values.setAttributeValue(size, -2.9);
    EXPECT_EQ(values.attributeValue(size), Value(-2));
    values.setAttributeValue(flag, 0.5);
    EXPECT_EQ(values.attributeValue(flag), Value(true));
    values.setAttributeValue(ratio, true);
    EXPECT_EQ(values.attributeValue(ratio), Value(1.0));
    values.setAttributeValue(ratio, std::nan(""));
    EXPECT_EQ(values.attributeValue(ratio), Value());
    values.setAttributeValue(flag, nullptr);
    EXPECT_EQ(values.attributeValue(flag), Value());
}

TEST_F(PropertyValuesOfADocument, RefuseValuesOfAnotherKind)
{
    EXPECT_THROW(values.setAttributeValue(title, 5), NSException);
    EXPECT_THROW(values.setAttributeValue(order, "5"), NSException);
    EXPECT_THROW(values.setAttributeValue(title, NSData::fromText("x")), NSException);
}

TEST_F(PropertyValuesOfADocument, KeepEachPropertyApart)
{
    const auto fill = [&](const NSAttributeDescription& attribute) {
        if (attribute.isScalar())
            values.setAttributeValue(attribute.index(), 1);
        else if (attribute.type() == NSAttributeType::Date)
            values.setAttributeValue(attribute.index(), dateWithMicrosecondsSinceReferenceDate(attribute.index()));
        else if (attribute.type() == NSAttributeType::Data)
            values.setAttributeValue(attribute.index(), NSData::fromText(attribute.name()));
        else
            values.setAttributeValue(attribute.index(), attribute.name());
    };
    for (const NSPropertyDescription* cleared : entity.properties()) {
        for (const NSAttributeDescription* attribute : entity.attributes())
            fill(*attribute);
        values.setInteger(owner, 77);
        const PropertyValues before = values;
        values.setUnloaded(cleared->index());
        for (const NSPropertyDescription* property : entity.properties())
            EXPECT_EQ(values.equals(property->index(), before), property != cleared)
                << property->name() << " without " << cleared->name();
        values.setNil(cleared->index());
        EXPECT_TRUE(values.isLoaded(cleared->index()));
        EXPECT_TRUE(values.isNil(cleared->index()));
        values = before;
        for (const NSPropertyDescription* property : entity.properties())
            EXPECT_TRUE(values.equals(property->index(), before)) << property->name();
    }
}

TEST_F(PropertyValuesOfADocument, BeginWithoutWhatWasNotRead)
{
    const PropertyValues unread(entity, propertyBit(title) | propertyBit(flag));
    EXPECT_FALSE(unread.isLoaded(title));
    EXPECT_FALSE(unread.isLoaded(flag));
    EXPECT_TRUE(unread.isLoaded(owner));
}

TEST_F(PropertyValuesOfADocument, ShareStringsWithAModelThatHoldsTheSame)
{
    PropertyValues model{entity};
    model.setBytes(title, "a title");
    values.setBytes(title, "a title", &model);
    EXPECT_EQ(values.bytes(title).data(), model.bytes(title).data());
    values.setBytes(title, "another", &model);
    EXPECT_EQ(values.bytes(title), "another");
    EXPECT_EQ(model.bytes(title), "a title");
    values.setBytes(title, "x", nullptr);
    EXPECT_EQ(values.bytes(title), "x");
    const PropertyValues none{entity};
    values.setBytes(title, "", &none);
    EXPECT_FALSE(values.isNil(title));
}

TEST_F(PropertyValuesOfADocument, HaveNoSlotForFlagsAndToManyRelationships)
{
    std::size_t slots = 0;
    for (const NSPropertyDescription* property : entity.properties()) {
        const auto* attribute = entity.attributeNamed(property->name());
        const auto* relationship = entity.relationshipNamed(property->name());
        const bool takesNone = (attribute && attribute->type() == NSAttributeType::Boolean)
            || (relationship && relationship->isToMany());
        slots += takesNone ? 0 : 1;
    }
    EXPECT_LT(slots, entity.properties().size());
    EXPECT_EQ(entity.slotCount(), slots);
}

TEST(NSManagedObjectID, IsTemporaryUntilItHasAPermanentKey)
{
    const auto& store = StoreIdentity::forUUID("A");
    const auto& entity = *storeTestModel()->entityNamed("Label");
    EXPECT_EQ(&StoreIdentity::forUUID("A"), &store);
    const auto first = NSManagedObjectID::makeTemporary(store, entity);
    const auto second = NSManagedObjectID::makeTemporary(store, entity);
    EXPECT_TRUE(first.isTemporaryID());
    EXPECT_NE(first, second);
    EXPECT_FALSE(NSManagedObjectID(store, entity, 1).isTemporaryID());
    EXPECT_FALSE(NSManagedObjectID());
}

TEST(NSManagedObjectID, IsTheSameThroughoutAnInheritanceChain)
{
    const auto& store = StoreIdentity::forUUID("A");
    const NSManagedObjectID asPicture(store, *storeTestModel()->entityNamed("Picture"), 3);
    const NSManagedObjectID asAttachment(store, *storeTestModel()->entityNamed("Attachment"), 3);
    EXPECT_EQ(asPicture, asAttachment);
    EXPECT_EQ(std::hash<NSManagedObjectID>()(asPicture), std::hash<NSManagedObjectID>()(asAttachment));
    EXPECT_NE(asPicture, NSManagedObjectID(store, *storeTestModel()->entityNamed("Label"), 3));
    EXPECT_NE(asPicture, NSManagedObjectID(StoreIdentity::forUUID("B"), asPicture.entity(), 3));
}

TEST(NSManagedObjectID, ReadsOnlyTemporaryUUIDsOfThisProcess)
{
    const auto& entity = *storeTestModel()->entityNamed("Label");
    const auto id = NSManagedObjectID::makeTemporary(StoreIdentity::forUUID("A"), entity);
    const std::string uri = id.URIRepresentation();
    std::string uuid = uri.substr(uri.size() - 36);
    EXPECT_EQ(temporaryKeyForUUID(uuid), id.key());
    uuid.back() = uuid.back() == '0' ? '1' : '0';
    EXPECT_NE(temporaryKeyForUUID(uuid), id.key());
    uuid.front() = uuid.front() == '0' ? '1' : '0';
    EXPECT_EQ(temporaryKeyForUUID(uuid), 0) << "another process";
    EXPECT_EQ(temporaryKeyForUUID("no UUID"), 0);
}

} // namespace
} // namespace tarn
