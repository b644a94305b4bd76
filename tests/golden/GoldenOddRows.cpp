#include "tests/golden/GoldenOddRows.h"

namespace tarn {

namespace {

constexpr std::string_view kOfBothVersions = R"sql(
-- Nothing but nil, with and without a row for large values.
INSERT INTO "OVNote" ("pk", "rowVersion") VALUES (1001, 1), (1002, 4294967296);
INSERT INTO "OVNote_large" ("pk", "text") VALUES (1002, NULL);
INSERT INTO "OVNoteFile" ("pk", "rowVersion", "entity") VALUES (1001, 1, 'OVNoteImage'), (1002, 2, 'OVNoteGenericFile');
INSERT INTO "OVNoteServerData" ("pk", "rowVersion") VALUES (1001, 1);
INSERT INTO "OVChange" ("pk", "rowVersion") VALUES (1001, 1);
INSERT INTO "OVChangeItem" ("pk", "rowVersion") VALUES (1001, 1);
INSERT INTO "OVInternalChanges" ("pk", "rowVersion") VALUES (1001, 1);

-- The ends of what integers and dates can be.
INSERT INTO "OVNote" ("pk", "rowVersion", "uniqueIdentifier", "creationDate", "modificationDate", "version", "archived",
  "archivedDate", "pinned", "pinnedDate", "order", "orderDate", "title") VALUES
(1003, 2, 'LEAST', -9223372036854775808, -9223372036854775808, -32768, 0, 0, 0, -1, -9223372036854775808, 1, ''),
(1004, 3, 'GREATEST', 9223372036854775807, 9223372036854775807, 32767, 1, 9223372036854775807, 1, 0,
  9223372036854775807, -9223372036854775808, '');
INSERT INTO "OVNote_large" ("pk", "text") VALUES (1003, ''), (1004, '');

-- What leads nowhere.
INSERT INTO "OVNote" ("pk", "rowVersion", "uniqueIdentifier", "serverData") VALUES (1005, 1, 'NO SERVER DATA', 77777);
INSERT INTO "OVNote_tags" ("owner", "member") VALUES (1, 77777), (2, 88888), (77777, 1), (77777, 88888);
INSERT INTO "OVNoteFile" ("pk", "rowVersion", "entity", "uniqueIdentifier", "filename", "note", "serverData") VALUES
(1003, 1, 'OVNoteImage', 'NO NOTE', 'lost.png', 77777, 77777),
(1004, 1, 'OVNoteGenericFile', 'NO NOTE EITHER', 'lost.txt', 88888, NULL);
INSERT INTO "OVChangeItem" ("pk", "rowVersion", "itemEntity", "uniqueIdentifier", "itemDeleted", "change") VALUES
(1002, 1, 'OVNote', 'NO CHANGE', 1, 77777);
INSERT INTO "OVNoteFileServerData" ("pk", "rowVersion") VALUES (1001, 1);
INSERT INTO "OVNoteFileServerData_large" ("pk", "systemFields") VALUES (1001, X'');

-- The change log, the application's queues, and what the server said.
INSERT INTO "OVChange" ("pk", "rowVersion", "token", "order") VALUES
(1002, 1, '0B5B4C3E-0001-4000-8000-000000000001', 1), (1003, 1, '0B5B4C3E-0001-4000-8000-000000000002', 9007199254740993);
INSERT INTO "OVChangeItem" ("pk", "rowVersion", "itemEntity", "uniqueIdentifier", "itemDeleted", "change") VALUES
(1003, 1, 'OVNote', 'LEAST', 0, 1002), (1004, 1, 'OVNoteTag', '', 1, 1002), (1005, 1, 'OVNoteImage', NULL, NULL, 1003);
INSERT INTO "OVInternalChanges" ("pk", "rowVersion", "changeType", "itemChange", "itemObjectID") VALUES
(1002, 1, 'spotlight', -32768, 'tarn-store://{uuid}/OVNote/p12'),
(1003, 1, 'it''s "another" queue', 32767, 'tarn-store://{uuid}/OVNoteTag/p3'),
(1004, 1, '', 0, 'no identifier at all');
INSERT INTO "OVServerMetadata" ("pk", "rowVersion", "noteZoneIDData", "serverChangeTokenData", "noteZoneSubscriptionID")
VALUES (3, 7, X'62706C6973743030', X'00FF00', 'zone-ø');
)sql";

constexpr std::string_view kOfVersion1 = R"sql(
INSERT INTO "OVNoteTag" ("pk", "rowVersion", "name") VALUES (1001, 1, 'Lonely Tag');
INSERT INTO "OVNote" ("pk", "rowVersion", "uniqueIdentifier", "serverModificationDate") VALUES
(1006, 1, 'SERVER DATE', -9223372036854775808);

-- Sizes that are no whole numbers of today's.
INSERT INTO "OVNoteFile" ("pk", "rowVersion", "entity", "fileSize", "index") VALUES
(1101, 1, 'OVNoteImage', 0.5, 32767), (1102, 1, 'OVNoteImage', 1.5, -32768), (1103, 1, 'OVNoteImage', 2.5, 0),
(1104, 1, 'OVNoteImage', -0.5, 1), (1105, 1, 'OVNoteImage', -2.5, 2), (1106, 1, 'OVNoteImage', 0.49999999999999994, 3),
(1107, 1, 'OVNoteGenericFile', 1e300, 4), (1108, 1, 'OVNoteGenericFile', -1e300, 5),
(1109, 1, 'OVNoteGenericFile', 9e999, 6), (1110, 1, 'OVNoteGenericFile', -9e999, 7),
(1111, 1, 'OVNoteGenericFile', 9223372036854775808.0, 8), (1112, 1, 'OVNoteGenericFile', -9223372036854775808.0, 9),
(1113, 1, 'OVNoteGenericFile', 4503599627370497.5, 10), (1114, 1, 'OVNoteGenericFile', -0.0, 11),
(1115, 1, 'OVNoteGenericFile', 5e-324, 12), (1116, 1, 'OVNoteGenericFile', NULL, NULL);
)sql";

constexpr std::string_view kOfVersion2 = R"sql(
INSERT INTO "OVNoteTag" ("pk", "rowVersion", "title", "icon", "iconDate") VALUES
(1001, 1, 'Lonely Tag', '', 9223372036854775807);
INSERT INTO "OVNoteBackLink" ("pk", "rowVersion") VALUES (1001, 1);
INSERT INTO "OVPassword" ("pk", "rowVersion") VALUES (1001, 1);
INSERT INTO "OVExternalChanges" ("pk", "rowVersion") VALUES (1001, 1);

-- Sizes and places.
INSERT INTO "OVNoteFile" ("pk", "rowVersion", "entity", "fileSize", "index", "animated", "width", "height") VALUES
(1101, 1, 'OVNoteImage', 9223372036854775807, 9223372036854775807, 1, 9223372036854775807, 0),
(1102, 1, 'OVNoteImage', -9223372036854775808, -9223372036854775808, NULL, -9223372036854775808, NULL);

-- What leads nowhere.
INSERT INTO "OVNote" ("pk", "rowVersion", "uniqueIdentifier", "encrypted", "pinnedInTag", "password") VALUES
(1006, 1, 'NO TAG', 0, 77777, NULL), (1007, 1, 'NO PASSWORD', 1, NULL, 77777), (1008, 1, 'A TAG', 0, 1001, NULL);
INSERT INTO "OVNote_large" ("pk", "text", "encryptedData") VALUES (1007, NULL, X'00');
INSERT INTO "OVNoteFile" ("pk", "rowVersion", "entity", "encrypted", "password") VALUES
(1103, 1, 'OVNoteGenericFile', 1, 77777);
INSERT INTO "OVNoteFile_large" ("pk", "encryptedData") VALUES (1103, X'FF');
INSERT INTO "OVNoteBackLink" ("pk", "rowVersion", "title", "location", "linkedBy", "linkingTo") VALUES
(1002, 1, 'Nowhere', 9223372036854775807, 77777, 77777), (1003, 1, 'From nowhere', -1, 88888, 1),
(1004, 1, '', -9223372036854775808, NULL, 77777);

-- The queue between processes.
INSERT INTO "OVExternalChanges" ("pk", "rowVersion", "itemEntity", "itemChange", "itemObjectID") VALUES
(1002, 1, 'OVNote', 0, 'tarn-store://{uuid}/OVNote/p7'),
(1003, 1, 'OVNoteFile', 2, 'tarn-store://{uuid}/OVNoteImage/p1001'),
(1004, 1, NULL, -32768, 'tarn-store://00000000-0000-0000-0000-000000000000/OVNote/p1');
)sql";

} // namespace

std::string oddRows(int version)
{
    std::string rows(kOfBothVersions);
    rows += version == 1 ? kOfVersion1 : kOfVersion2;
    constexpr std::string_view kPlace = "{uuid}";
    for (std::size_t at = rows.find(kPlace); at != std::string::npos; at = rows.find(kPlace, at))
        rows.replace(at, kPlace.size(), goldenStoreUUID);
    return rows;
}

} // namespace tarn
