-- A store of "Model 2". Written by write_golden_stores; see tests/golden/main.cpp.
PRAGMA page_size = 8192;
BEGIN;
CREATE TABLE "store_metadata" ("key" TEXT PRIMARY KEY, "value" TEXT) WITHOUT ROWID;
CREATE TABLE "store_keys" ("entity" TEXT PRIMARY KEY, "nextKey" INTEGER NOT NULL) WITHOUT ROWID;
CREATE TABLE "OVNote" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "uniqueIdentifier" TEXT, "title" TEXT, "subtitle" TEXT, "creationDate" INTEGER, "modificationDate" INTEGER, "lastEditingDevice" TEXT, "version" INTEGER, "archived" INTEGER, "archivedDate" INTEGER, "trashed" INTEGER, "trashedDate" INTEGER, "permanentlyDeleted" INTEGER, "pinned" INTEGER, "pinnedDate" INTEGER, "locked" INTEGER, "lockedDate" INTEGER, "order" INTEGER, "orderDate" INTEGER, "shownInTodayWidget" INTEGER, "skipSync" INTEGER, "hasFiles" INTEGER, "hasImages" INTEGER, "todoCompleted" INTEGER, "todoIncompleted" INTEGER, "encrypted" INTEGER, "encryptionDate" INTEGER, "encryptionUniqueIdentifier" TEXT, "pinnedInTag" INTEGER REFERENCES "OVNoteTag" ("pk") DEFERRABLE INITIALLY DEFERRED, "password" INTEGER REFERENCES "OVPassword" ("pk") DEFERRABLE INITIALLY DEFERRED, "serverData" INTEGER REFERENCES "OVNoteServerData" ("pk") DEFERRABLE INITIALLY DEFERRED, "title_folded" TEXT);
CREATE TABLE "OVNote_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNote" ("pk") DEFERRABLE INITIALLY DEFERRED, "text" TEXT, "encryptedData" BLOB);
CREATE TABLE "OVNoteTag" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "uniqueIdentifier" TEXT, "title" TEXT, "modificationDate" INTEGER, "version" INTEGER, "isRoot" INTEGER, "pinned" INTEGER, "pinnedDate" INTEGER, "pinnedNotesDate" INTEGER, "sorting" INTEGER, "sortingDate" INTEGER, "sortingDirection" INTEGER, "sortingDirectionDate" INTEGER, "icon" TEXT, "iconDate" INTEGER, "title_folded" TEXT);
CREATE TABLE "OVNoteTag_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNoteTag" ("pk") DEFERRABLE INITIALLY DEFERRED, "serverData" BLOB);
CREATE TABLE "OVNoteFile" ("pk" INTEGER PRIMARY KEY, "entity" TEXT NOT NULL, "rowVersion" INTEGER NOT NULL, "uniqueIdentifier" TEXT, "filename" TEXT, "normalizedFileExtension" TEXT, "fileSize" INTEGER, "index" INTEGER, "creationDate" INTEGER, "modificationDate" INTEGER, "insertionDate" INTEGER, "lastEditingDevice" TEXT, "version" INTEGER, "downloaded" INTEGER, "uploaded" INTEGER, "uploadedDate" INTEGER, "unused" INTEGER, "unusedDate" INTEGER, "permanentlyDeleted" INTEGER, "skipSync" INTEGER, "encrypted" INTEGER, "encryptionDate" INTEGER, "encryptionUniqueIdentifier" TEXT, "note" INTEGER REFERENCES "OVNote" ("pk") DEFERRABLE INITIALLY DEFERRED, "password" INTEGER REFERENCES "OVPassword" ("pk") DEFERRABLE INITIALLY DEFERRED, "serverData" INTEGER REFERENCES "OVNoteFileServerData" ("pk") DEFERRABLE INITIALLY DEFERRED, "animated" INTEGER, "width" INTEGER, "height" INTEGER);
CREATE TABLE "OVNoteFile_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNoteFile" ("pk") DEFERRABLE INITIALLY DEFERRED, "encryptedData" BLOB);
CREATE TABLE "OVNoteBackLink" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "uniqueIdentifier" TEXT, "title" TEXT, "location" INTEGER, "modificationDate" INTEGER, "version" INTEGER, "linkedBy" INTEGER REFERENCES "OVNote" ("pk") DEFERRABLE INITIALLY DEFERRED, "linkingTo" INTEGER REFERENCES "OVNote" ("pk") DEFERRABLE INITIALLY DEFERRED, "title_folded" TEXT);
CREATE TABLE "OVNoteBackLink_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNoteBackLink" ("pk") DEFERRABLE INITIALLY DEFERRED, "serverData" BLOB);
CREATE TABLE "OVPassword" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "uniqueIdentifier" TEXT, "creationDate" INTEGER, "creationDevice" TEXT, "encryptedData" BLOB, "encryptionVersion" INTEGER, "hint" BLOB, "biometry" INTEGER);
CREATE TABLE "OVChange" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "token" TEXT, "order" INTEGER);
CREATE TABLE "OVChangeItem" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "itemEntity" TEXT, "uniqueIdentifier" TEXT, "itemDeleted" INTEGER, "change" INTEGER REFERENCES "OVChange" ("pk") DEFERRABLE INITIALLY DEFERRED);
CREATE TABLE "OVInternalChanges" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "changeType" TEXT, "itemChange" INTEGER, "itemObjectID" TEXT);
CREATE TABLE "OVExternalChanges" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "itemEntity" TEXT, "itemChange" INTEGER, "itemObjectID" TEXT);
CREATE TABLE "OVServerMetadata" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "noteZoneIDData" BLOB, "serverChangeTokenData" BLOB, "noteZoneSubscriptionID" TEXT);
CREATE TABLE "OVNoteServerData" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL);
CREATE TABLE "OVNoteServerData_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNoteServerData" ("pk") DEFERRABLE INITIALLY DEFERRED, "systemFields" BLOB);
CREATE TABLE "OVNoteFileServerData" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL);
CREATE TABLE "OVNoteFileServerData_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNoteFileServerData" ("pk") DEFERRABLE INITIALLY DEFERRED, "systemFields" BLOB);
CREATE TABLE "OVNote_tags" ("owner" INTEGER NOT NULL REFERENCES "OVNote" ("pk") DEFERRABLE INITIALLY DEFERRED, "member" INTEGER NOT NULL REFERENCES "OVNoteTag" ("pk") DEFERRABLE INITIALLY DEFERRED, PRIMARY KEY ("owner", "member")) WITHOUT ROWID;
CREATE TABLE IF NOT EXISTS "OVNote_text_signature" ("pk" INTEGER PRIMARY KEY, "signature" BLOB);
CREATE TABLE IF NOT EXISTS "OVNote_text_changes" ("change" INTEGER PRIMARY KEY, "pk" INTEGER NOT NULL);
INSERT INTO "store_metadata" ("key", "value") VALUES
('storeUUID', '6F1C0B1E-7A52-4B0D-9E57-0C5A9C3D1E20'),
('formatVersion', '1'),
('modelVersion', 'Model 2'),
('foldingVersion', '69376'),
('host.lastBackup', '2021-03-14T15:09:26Z, Zoë''s "disk"'),
('host.empty', ''),
('entityHash.OVChange', '8c73b4f8909929d3'),
('entityHash.OVChangeItem', '1a826630e4031660'),
('entityHash.OVExternalChanges', '2d236499477cb5cd'),
('entityHash.OVInternalChanges', 'd9fcff01a9b50aeb'),
('entityHash.OVNote', '12d7bbb9a59583ef'),
('entityHash.OVNoteBackLink', '371d8b00045ec5ec'),
('entityHash.OVNoteFile', 'dcbad0dec34579b1'),
('entityHash.OVNoteFileServerData', '74a9e7b14b5e98a5'),
('entityHash.OVNoteGenericFile', '441def6675ab76aa'),
('entityHash.OVNoteImage', 'a714e98b725ec87a'),
('entityHash.OVNoteServerData', 'bbd0d6071b69ff93'),
('entityHash.OVNoteTag', '6c446db6ab7b4af8'),
('entityHash.OVPassword', '7ff7f42c781de1dc'),
('entityHash.OVServerMetadata', 'ccb6a966e7355e89');
INSERT INTO "OVNote" ("pk", "rowVersion", "uniqueIdentifier", "title", "subtitle", "creationDate", "modificationDate", "lastEditingDevice", "version", "archived", "archivedDate", "trashed", "trashedDate", "permanentlyDeleted", "pinned", "pinnedDate", "locked", "lockedDate", "order", "orderDate", "shownInTodayWidget", "skipSync", "hasFiles", "hasImages", "todoCompleted", "todoIncompleted", "encrypted", "encryptionDate", "encryptionUniqueIdentifier", "pinnedInTag", "password", "serverData", "title_folded") VALUES
(1, 2, 'EA213A7C-FF43-4558-842E-C65FD3791FC2', 'It''s "quoted"', '''''; DROP TABLE "OVNote"; --', 1700000000001000, 1700000000003000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'it''s "quoted"'),
(2, 3, 'FA0FE9ED-88F7-4196-B8FA-7549B9696EFC', 'Back\slash \ C:\new\table', '\n \0 '' %s %d {} {0} ?1 :name @name $name', 1700000000004000, 1700000000005000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'back\slash \ c:\new\table'),
(3, 4, 'DABE5360-2B20-4AF2-884C-FE8A28223C89', CAST(X'4E554C200020696E2061207469746C65' AS TEXT), CAST(X'616E6420000020696E20612074657874' AS TEXT), 1700000000006000, 1700000000007000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, CAST(X'6E756C200020696E2061207469746C65' AS TEXT)),
(4, 5, 'F6E54656-C613-48D2-8144-A8513DC6F97D', CAST(X'00' AS TEXT), '', 1700000000008000, 1700000000009000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, CAST(X'00' AS TEXT)),
(5, 1, 'E56192D4-DA57-462B-B4E5-CAC8DAE3DBE0', CAST(X'4E554C200020616E64207468656E' AS TEXT), '#behind/nul Groceries', 1700000000010000, 1700000000014000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, CAST(X'6E756C200020616E64207468656E' AS TEXT)),
(6, 2, 'CFDBEEE0-E731-486C-AEBB-49EB4EDE6E5F', CAST(X'436F6E74726F6C732001021B5B306D7F' AS TEXT), CAST(X'62656C6C20072C20666F726D2066656564200C2C20766572746963616C20746162' AS TEXT), 1700000000015000, 1700000000016000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, CAST(X'636F6E74726F6C732001021B5B306D7F' AS TEXT)),
(7, 3, '20771095-AB3A-4215-AAB1-BFD3FD5C3361', 'Line ends', 'of another system', 1700000000017000, 1700000000019000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(8, 4, '7A91A539-9F22-402A-B024-16135F912D48', 'Old line ends', 'of a third', 1700000000020000, 1700000000021000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'old line ends'),
(9, 5, '250995A4-F2A7-48E7-93FB-5A24286613B8', 'A byte order mark', 'in front', 1700000000022000, 1700000000023000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'a byte order mark'),
(11, 2, '887CCE75-3133-439B-834F-82160585D265', 'Separators of lines and paragraphs', '', 1700000000024000, 1700000000025000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'separators of lines and paragraphs'),
(12, 3, '5D8CDC86-712C-4590-8534-783E9A536765', '🎉 Emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴', '🧵 #🎉 #party/🥳 Groceries', 1700000000026000, 1700000000031000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, '🎉 emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴'),
(13, 4, '5C5BF36A-A64A-4ABE-AD21-82BB39A6E07F', 'שלום עולם', 'טקסט מימין לשמאל, ‏12‎ #עברית', 1700000000032000, 1700000000034000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'שלום עולם'),
(14, 5, '90042F4C-76BD-42FE-9769-93611F51D9C9', 'مرحبا بالعالم', 'الحليب ، الخبز', 1700000000035000, 1700000000038000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(15, 1, '2F53EDBA-ACFC-429F-A332-FC5A8ADBFEAA', 'Café and café', 'Z͑ͯ̓a̢̡l̵go̢ ȩ̣́ #café', 1700000000039000, 1700000000041000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'cafe and cafe'),
(16, 2, '56A28EEE-F1EC-43EE-AFD6-1D93A9405EE4', 'Left over �� of halves', 'of pairs �', 1700000000042000, 1700000000043000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'left over �� of halves'),
(17, 3, '628B7715-151B-4CD3-8911-A84FEF0AB1C4', 'Astral 𝕏 𐍈 𠜎', '𝟘𝟙𝟚 #𝔱𝔞𝔤', 1700000000044000, 1700000000046000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'astral 𝕏 𐍈 𠜎'),
(18, 4, 'AFB8F8A2-166B-4096-9A80-44B3B397AFBF', 'İstanbul ıspanak STRASSE ß ẞ ﬁ Ǆ', 'folded #İzmir #ıspanak', 1700000000047000, 1700000000050000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'istanbul ıspanak strasse ss ss fi ǆ'),
(19, 5, '2F90A6AE-F73B-47D8-B419-02FE4725090A', 'Zero​width‍ and blanks　of all kinds', '­', 1700000000051000, 1700000000052000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'zerowidth‍ and blanks　of all kinds'),
(21, 2, 'D3368C5F-04C0-4F66-9ACA-4E717F680E45', '日本語の題名', '本文です。#日本/料理', 1700000000053000, 1700000000054000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(22, 3, '7190FEDB-05E0-4908-B20E-76CC5BA9FF5D', '한국어', '한글 조합형 한 #한국', 1700000000055000, 1700000000057000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, '한국어'),
(23, 4, 'E98BD80F-535B-4964-ADC8-24A060DB840C', '', '', 1700000000058000, 1700000000059000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(24, 5, '177D85D9-F25E-4A29-96E0-F3BB1B261832', '', '', 1700000000060000, 1700000000061000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(25, 1, 'FC9A5C9F-F1E0-472B-AD7D-8507DF064953', '', '', 1700000000062000, 1700000000063000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(26, 2, '9094C970-F29B-40EB-8A9F-4C6E891467F4', '', '', 1700000000064000, 1700000000065000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(27, 3, '96850915-1C75-49B2-B6EF-2EEAD27934E0', '', '', 1700000000066000, 1700000000067000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(28, 4, 'C96842C1-7A66-4119-A319-62C2EA88C235', '', '', 1700000000068000, 1700000000069000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(29, 5, '927AF9D6-2605-4055-8F8A-3A838A297097', '', '', 1700000000070000, 1700000000071000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(31, 2, 'D62C9F6A-A587-403C-8F91-E98B619B86F0', '', '', 1700000000072000, 1700000000073000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(32, 3, '72919F06-858C-455E-B598-09EAEDA1B4A1', '[[', '', 1700000000074000, 1700000000075000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, '[['),
(33, 4, '7B65AD3A-BED9-4905-B3AB-0CF4DD408345', ']]', '', 1700000000076000, 1700000000077000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ']]'),
(34, 5, '790778A6-E182-401D-8D7B-79CEFD4C2130', '', '', 1700000000078000, 1700000000080000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(35, 1, 'BE8203DE-0ABF-4774-9390-7E4EBEA27F9C', '', '', 1700000000081000, 1700000000084000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(36, 2, '7FCB102C-8C98-4AFB-A4B0-B25C7D31F535', '', '', 1700000000085000, 1700000000086000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(37, 3, 'DA8C7428-9FD8-4846-95E8-CF375461FB61', '', '', 1700000000087000, 1700000000088000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(38, 4, '0CD2FE87-E9D6-481A-8926-6F3767A7C3CB', '', '', 1700000000089000, 1700000000090000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(39, 5, 'DD2B9D1B-6E8A-482A-AB24-3099345A2B54', 'Fenced', 'int main() { return ''\''''; }', 1700000000091000, 1700000000092000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'fenced'),
(41, 2, '72A0F784-D25A-45FD-B5EA-616C402FD0A8', 'Fenced with tildes', '[[Groceries]] #notag', 1700000000093000, 1700000000094000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'fenced with tildes'),
(42, 3, '31E1BF0C-7A2A-4310-8248-19E0B552E927', 'Indented', '[[Groceries]]', 1700000000095000, 1700000000096000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(43, 4, 'E88233DC-E2B2-4958-AFA3-407E6F5A81EE', 'Indented by a tab', 'code', 1700000000097000, 1700000000098000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'indented by a tab'),
(44, 5, 'FEC71875-EE90-471A-B4DB-CB22F8E30D9C', 'In a list', 'item', 1700000000099000, 1700000000100000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'in a list'),
(45, 1, 'D213B177-537F-4AD5-874C-1AAE7FCC1799', 'In a quote', 'code', 1700000000101000, 1700000000102000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'in a quote'),
(46, 2, '74C62304-DB88-4339-86AF-D5EF017D4DA8', 'Spans only', 'code and two ` ticks and three in a line', 1700000000103000, 1700000000104000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'spans only'),
(47, 3, '629DF8CA-9CC6-4B56-B65C-0A1E0C7C6250', 'A paragraph', 'goes on indented', 1700000000105000, 1700000000106000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'a paragraph'),
(48, 4, '59A59031-55AB-4C6C-ABCF-3CF1E3025596', 'Deep list', 'one', 1700000000107000, 1700000000108000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'deep list'),
(49, 5, '4F5271EB-BCE0-4A1A-B316-319AD65774FD', CAST(X'5461627309696E096C696E6573' AS TEXT), CAST(X'6109622020202063' AS TEXT), 1700000000109000, 1700000000110000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(51, 2, '2308123E-2A73-482C-B05C-5C5B4E2BD388', 'Shopping', 'milk', 1700000000111000, 1700000000112000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 3, 3, 0, NULL, NULL, NULL, NULL, NULL, 'shopping'),
(52, 3, '2E98829F-1DED-4D6E-9C9A-0CC8F7BD0AC9', 'a to-do for a title', 'and another', 1700000000113000, 1700000000114000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'a to-do for a title'),
(53, 4, 'AFF95D45-958C-4AEC-B0ED-4D36D30AE58A', 'Tags', '#a/b/c #a/b #A/B/C #closed tag# (#in-parentheses) x#none #none #home/kitchen, #ideas!', 1700000000115000, 1700000000122000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'tags'),
(54, 5, 'A956F261-95B3-447A-BD67-EEA1FF6171D9', '#first line of tags', 'The title below', 1700000000123000, 1700000000126000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, '#first line of tags'),
(55, 1, '16BBA77A-FBD0-4741-BBA7-B106EC99A3BC', 'Many levels', '', 1700000000127000, 1700000000136000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'many levels'),
(56, 2, 'EA2C8C42-5242-402E-951F-2129FC27DA08', 'Setext title', 'and text', 1700000000137000, 1700000000138000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(57, 3, '56B17CAE-3EB7-4984-8012-4DCA08563C0A', 'Quoted title', 'quoted', 1700000000139000, 1700000000140000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'quoted title'),
(58, 4, 'D5F585DF-3F8D-4555-ACD0-6A5CC09372E3', 'A link and an image', 'https://example.com r', 1700000000141000, 1700000000142000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'a link and an image'),
(59, 5, 'C95CD39F-3597-4DE9-AAA9-6D1C000BF986', 'Emphasis strong gone marked code & © *', 'raw', 1700000000143000, 1700000000144000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'emphasis strong gone marked code & © *'),
(61, 2, 'BF5AF3CB-364E-47FE-909F-CB5B74908819', '| a | b |', '|---|---| | 1 | x|y |', 1700000000145000, 1700000000147000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, '| a | b |'),
(62, 3, '57A4208B-5BB2-4EF1-8A7B-A4C379902488', '1986. A great year', '', 1700000000148000, 1700000000149000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, '1986. a great year'),
(63, 4, '489EDDF0-811C-4230-B02D-17218F0B7E09', '[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[x]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]', '', 1700000000150000, 1700000000152000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(64, 5, '41771617-D5D5-4851-9DC4-59E41CE7B74A', 'deep', '', 1700000000153000, 1700000000154000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'deep'),
(65, 1, '3975ACAD-6515-471B-AC0A-42ADA25776B6', 'A long day', 'It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. ', 1700000000155000, 1700000000156000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'a long day'),
(66, 2, '8746351C-2B25-4450-9B77-04D7288B3A89', '🎉 A long feast', '🧁 for Zoë', 1700000000157000, 1700000000159000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 32767, 0, NULL, NULL, NULL, NULL, NULL, '🎉 a long feast'),
(67, 3, '87FF3BFE-19C1-4D60-B59E-0F295445528A', 'A long program', 'it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code ', 1700000000160000, 1700000000161000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'a long program'),
(68, 4, 'E6A38458-43E6-4E4F-9C63-9021BA8DB044', '', '', 1700000000162000, 1700000000163000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(69, 5, 'D92BE75B-923B-4D79-B9A0-C8C13974FFBF', 'Entry 0', 'naïve план rain Kitchen Kitchen.', 1420156800123456, 1700000000167000, 'Zoë’s "old" telephone 📱', 2, 1, 1700000001117000, 1, 1700000001119000, 1, 1, 1700000001116000, 1, 1700000001120000, -100, NULL, 1, 1, 1, 1, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 0'),
(71, 2, '9F0FA0DE-A8B1-421D-97E5-959C2074863D', 'Entry 1', 'çay window çay ποίημα çay letter quince rain rain coat.', 1420243200123456, 1700000000170000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 9223372036854775807, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 1'),
(72, 3, '2FC521B0-6966-4538-B7CB-E17DB1E107DE', 'Entry 2', 'naïve garden 東京 garden straße 서울 tea coat 東京.', 1420329600123456, 1700000000174000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -9223372036854775808, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 2'),
(73, 4, '9C941469-61FD-467A-AF46-6FF2CF06AE93', 'Entry 3', 'rain rain bread план river 東京 river naïve bread Kitchen.', 1420416000123456, -62135596800000000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -97, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, 42, NULL, NULL, 'entry 3'),
(74, 5, '6D0070C1-571A-47A1-94CB-77988C61305D', 'Entry 4', 'naïve 서울 letter ποίημα 東京 clock.', 1420502400123456, 253402300799999999, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -96, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, 1, 'entry 4'),
(75, 1, 'F86F905E-EE01-4111-BFB9-C0037B80E072', 'Entry 5', 'план quince ποίημα coat ποίημα garden mañana 서울 letter.', 1420588800123456, -1, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -95, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 5'),
(76, 2, 'A9E2E490-1294-4937-A795-AF794AC008AE', 'Entry 6', NULL, 1420675200123456, 1700000000188000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -94, NULL, 0, 0, 0, 0, 2, 1, 1, 1700000000188000, 'FBCFB4D2-BAEC-42D5-A7BA-4D19D2006D4B', 17, 1, NULL, 'entry 6'),
(77, 3, '5F704DAD-2568-43D6-BBD3-E297BC956446', 'Entry 7', 'naïve coat çay clock.', 1420761600123456, 1700000000190000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -93, NULL, 0, 0, 1, 1, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(78, 4, '5DB2BFE3-F402-406D-B52E-A1ACD7EF7922', 'Entry 8', 'ladder clock letter.', 1420848000123456, 1700000000192000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -92, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 8'),
(79, 5, '6B56114A-BE31-4E4F-AA73-D4C902223809', 'Entry 9', 'ladder план план quince.', 1420934400123456, 1700000000196000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -91, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, 2, 'entry 9'),
(81, 2, 'B4653451-BC42-4AE9-AD80-DD39552EEBCE', 'Entry 10', 'window bread mañana mañana tea Ærø Übung çay.', 1421020800123456, 1700000000199000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -90, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 10'),
(82, 3, '1DF3B989-83F9-4F3A-8493-CB67B7A71FC7', 'Entry 11', 'letter window bread 서울 Ærø.', 1421107200123456, 1700000000201000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001121000, 0, NULL, -89, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 11'),
(83, 4, '21B1E6B5-216B-4ABD-B5EA-922A44C4B27F', 'Entry 12', 'garden letter window.', 1421193600123456, 1700000000204000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -88, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, 19, NULL, NULL, 'entry 12'),
(84, 5, '4B6C592E-82B6-45C9-8D51-BD0680247994', 'Entry 13', 'Kitchen river ποίημα 東京 Kitchen Ærø rain quince план river.', 1421280000123456, 1700000000206000, 'Zoë’s test machine', 1, 1, 1700000001124000, 0, 1700000001125000, 0, 0, NULL, 0, NULL, -87, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(85, 1, 'F53A0184-C51F-4893-A83F-18C1B6EA6854', 'Entry 14', '서울 garden river ποίημα rain clock çay çay naïve garden river.', 1421366400123456, 1700000000208000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -86, NULL, 0, 0, 0, 1, 0, 0, 0, NULL, NULL, NULL, NULL, 3, 'entry 14'),
(86, 2, 'B67FC566-C01D-411D-BC76-472117F63096', 'Entry 15', 'tea naïve river coat.', 1421452800123456, 1700000000212000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -85, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, 12, NULL, NULL, 'entry 15'),
(87, 3, 'DF1EB892-7E7E-4E2D-86E3-A3E8CE6BA64D', 'Entry 16', 'Übung 서울 план window clock Übung garden quince ποίημα.', 1421539200123456, 1700000000214000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -84, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 16'),
(88, 4, '37A30352-E289-429E-BA1F-844BFE38E9E6', 'Entry 17', '서울 çay naïve quince Ærø tea clock naïve план.', 1421625600123456, 1700000000216000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001131000, 0, 0, NULL, 0, NULL, -83, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 17'),
(89, 5, 'C237AFDC-D734-4EBA-9F06-503A0657CC90', 'Entry 18', 'Kitchen ποίημα çay tea bread 서울 straße window river naïve river.', 1421712000123456, 1700000000218000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -82, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 18'),
(91, 2, '77E36440-761B-463B-B04E-DB0ECDBD08BD', 'Entry 19', '서울 letter river straße ποίημα ποίημα Ærø rain coat.', 1421798400123456, 1700000000220000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001132000, -81, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, 4, NULL),
(92, 3, 'FA71B840-4F53-4C9E-BE5A-8D5CF4AC5214', 'Entry 20', 'clock quince bread Kitchen quince 서울 Kitchen mañana.', 1421884800123456, 1700000000222000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -80, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 20'),
(93, 4, '1D0ACEBE-BF4B-4C28-9C65-80CA194DFF61', 'Entry 21', '서울 rain 東京 clock Übung.', 1421971200123456, 1700000000224000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -79, NULL, 0, 0, 0, 1, 1, 1, 0, NULL, NULL, 19, NULL, NULL, 'entry 21'),
(94, 5, '1D5E6133-69BE-40FA-A33E-2CCC59706A69', 'Entry 22', NULL, 1422057600123456, 1700000000226000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001133000, 0, NULL, -78, NULL, 0, 0, 0, 0, 1, 0, 1, 1700000000226000, 'C0958BC1-E1D9-4B44-BE2A-653BED7E7C11', NULL, 1, NULL, 'entry 22'),
(95, 1, '62B7C5D4-A3FF-42A0-87B1-10E09B9E5142', 'Entry 23', 'ladder mañana clock coat Übung straße Ærø çay çay garden.', 1422144000123456, 1700000000230000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -77, NULL, 0, 1, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 23'),
(96, 2, '56DE54B5-3DFB-4AAA-95C4-3A09D9C2692C', 'Entry 24', 'naïve coat garden 東京 ποίημα Übung Kitchen quince coat.', 1422230400123456, 1700000000232000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -76, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, 18, NULL, 5, 'entry 24'),
(97, 3, 'C24E1AD7-A5C1-44B5-8D78-F9EB76F771FF', 'Entry 25', 'coat 서울 garden çay bread tea bread clock план quince river.', 1422316800123456, 1700000000234000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -75, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 25'),
(98, 4, 'ABA801E4-ACE3-467D-87A8-6AA3A020B560', 'Entry 26', 'naïve quince coat quince план coat straße.', 1422403200123456, 1700000000236000, 'Zoë’s test machine', 1, 1, 1700000001136000, 0, 1700000001137000, 0, 0, NULL, 0, NULL, -74, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(99, 5, '223974FD-F7E6-42D7-8B4C-55124333F5FC', 'Entry 27', '東京 東京 clock letter çay Übung çay tea çay.', 1422489600123456, 1700000000238000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -73, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 27'),
(101, 2, 'F7166FDF-DE17-4DD8-B167-D115570F03E6', 'Entry 28', 'quince ladder clock Ærø.', 1422576000123456, 1700000000242000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -72, NULL, 0, 0, 1, 1, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 28'),
(102, 3, '56234F23-9A7A-45F6-96E4-BA02B3D3A5A7', 'Entry 29', 'straße naïve naïve window план Ærø straße quince bread bread.', 1422662400123456, 1700000000244000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, -71, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, 6, 'entry 29'),
(103, 4, '5554B889-ECB8-44F8-B7F2-15703C825D5A', 'Entry 30', 'ladder mañana Ærø rain naïve Ærø mañana ladder Ærø ποίημα river.', 1422748800123456, 1700000000246000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -70, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 17, NULL, NULL, 'entry 30'),
(104, 5, 'AF1302DD-8D56-4245-A377-5435C444EB3E', 'Entry 31', 'ποίημα mañana 東京 Ærø rain tea rain letter mañana.', 1422835200123456, 1700000000250000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -69, NULL, 1, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 31'),
(105, 1, 'E2C20B74-6932-4F72-8AAF-2615F9D1BBE4', 'Entry 32', 'Kitchen quince bread 서울 window ποίημα Kitchen rain Kitchen.', 1422921600123456, 1700000000252000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -68, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(106, 2, '4F981BAC-7A0F-488E-A784-CEEA45CC4184', 'Entry 33', 'coat quince Übung quince clock coat rain 서울.', 1423008000123456, 1700000000254000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001138000, 0, NULL, -67, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, 17, NULL, NULL, 'entry 33'),
(107, 3, '2FEB9DC3-106B-4E34-9371-D9C0FF95B3A6', 'Entry 34', 'план Ærø straße tea quince window river Ærø letter tea ποίημα.', 1423094400123456, 1700000000258000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001141000, 0, 0, NULL, 0, NULL, -66, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, NULL, NULL, 7, 'entry 34'),
(108, 4, '69240AE3-F169-4CA9-BA19-DF8522C5A360', 'Entry 35', 'Kitchen river straße quince rain ποίημα Ærø bread.', 1423180800123456, 1700000000260000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -65, NULL, 0, 0, 1, 1, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 35'),
(109, 5, '1575ED23-372E-4228-8EB1-AEB3179C9E8B', 'Entry 36', 'garden straße straße Ærø letter tea.', 1423267200123456, 1700000000262000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -64, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, 19, NULL, NULL, 'entry 36'),
(111, 2, 'CBC5223B-A2B5-47A6-9A2B-45EF16AEF839', 'Entry 37', 'Übung çay 서울.', 1423353600123456, 1700000000264000, 'Zoë’s "old" telephone 📱', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -63, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 37'),
(112, 3, '9E785AFD-2AF4-4331-AAA9-8F6CF95A915A', 'Entry 38', NULL, 1423440000123456, 1700000000268000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001142000, -62, NULL, 0, 0, 0, 0, 0, 1, 1, 1700000000268000, '6AE2BA34-5E20-4AE0-A655-3507E3EC0DBF', NULL, 1, NULL, NULL),
(113, 4, 'A18B13C0-53BE-4CD2-B378-9A33A58C4015', 'Entry 39', 'bread tea straße clock straße ladder rain 東京 window clock 東京.', 1423526400123456, 1700000000270000, 'Zoë’s test machine', 2, 1, 1700000001146000, 0, 1700000001147000, 0, 0, NULL, 0, NULL, -61, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, 18, NULL, 8, 'entry 39'),
(114, 5, 'A1E13275-9C0F-4D0C-A5FF-F078D9F57FB1', 'Entry 40', 'план çay window mañana quince quince.', 1423612800123456, 1700000000272000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -60, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 40'),
(115, 1, '2998219B-FDCA-4CBC-8D0A-C60C47D2E9AC', 'Entry 41', 'coat quince window coat ποίημα straße naïve 東京.', 1423699200123456, 1700000000274000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -59, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 41'),
(116, 2, 'A32D6800-9C05-42D5-BAC4-AD94A09EC7F3', 'Entry 42', 'tea straße ladder garden clock bread Ærø.', 1423785600123456, 1700000000278000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -58, NULL, 0, 0, 0, 1, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 42'),
(117, 3, 'C9BFAF1D-BD8F-449A-BB4C-29D35711F182', 'Entry 43', 'letter rain coat letter ladder.', 1423872000123456, 1700000000280000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -57, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 43'),
(118, 4, '74EC512F-56A9-4656-87DB-6B807A750C3F', 'Entry 44', 'Kitchen rain ποίημα.', 1423958400123456, 1700000000282000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001148000, 0, NULL, -56, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, 9, 'entry 44'),
(119, 5, '08471AB5-1C45-4852-8534-0275DDF3550C', 'Entry 45', 'план rain 서울 letter.', 1424044800123456, 1700000000284000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -55, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, 17, NULL, NULL, NULL),
(121, 2, 'F3935396-BFDF-433F-A692-609DAB15E4E7', 'Entry 46', 'naïve rain Ærø tea план letter quince.', 1424131200123456, 1700000000286000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -54, NULL, 0, 1, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 46'),
(122, 3, 'CE9EDC6F-1C92-4ABC-A82F-44FD56212032', 'Entry 47', '서울 Kitchen 東京 rain quince çay Ærø ladder план straße.', 1424217600123456, 1700000000288000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -53, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 47'),
(123, 4, '4D91F451-56D2-4F76-8767-8813D946AE38', 'Entry 48', 'coat garden coat ποίημα quince ladder bread garden tea.', 1424304000123456, 1700000000292000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -52, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 48'),
(124, 5, 'ED9C4F26-3768-4212-82C5-3D9C85F676AD', 'Entry 49', 'window rain quince 東京 rain ladder.', 1424390400123456, 1700000000294000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -51, NULL, 0, 0, 0, 1, 0, 1, 0, NULL, NULL, NULL, NULL, 11, 'entry 49'),
(125, 1, '4FF7D746-197A-438F-BF22-131613A83DB0', 'Entry 50', 'straße план rain letter naïve coat.', 1424476800123456, 1700000000296000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -50, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 50'),
(126, 2, 'CDF03576-D772-4430-B6EE-E3CC91A5E4D9', 'Entry 51', 'bread naïve план window.', 1424563200123456, 1700000000298000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001153000, 0, 0, NULL, 0, NULL, -49, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, 17, NULL, NULL, NULL),
(127, 3, '8E42EA7A-181B-4D8B-8EBD-FD30F173D868', 'Entry 52', '東京 straße letter ladder Ærø river 서울 ποίημα.', 1424649600123456, 1700000000300000, 'Zoë’s test machine', 2, 1, 1700000001158000, 0, 1700000001159000, 0, 0, NULL, 0, NULL, -48, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 52'),
(128, 4, 'F0A73A9A-6F75-4A50-B2F7-C0A7000DE51C', 'Entry 53', 'naïve coat Übung letter ladder clock garden quince.', 1424736000123456, 1700000000302000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -47, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 53'),
(129, 5, '711EFD3F-22CB-4409-9542-67987BB7FCCB', 'Entry 54', NULL, 1424822400123456, 1700000000304000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -46, NULL, 0, 0, 0, 0, 0, 3, 1, 1700000000304000, '3F0E7281-F5E3-434A-9CCA-91ADB44691CC', NULL, 1, 12, 'entry 54'),
(131, 2, 'CEA4D78A-3DAE-4FA4-AE7D-4EB0A10B1F3D', 'Entry 55', 'Ærø window план tea.', 1424908800123456, 1700000000306000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001160000, 0, NULL, -45, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 55'),
(132, 3, '028DD907-C519-478F-AACC-B61BD5CBCA59', 'Entry 56', '서울 ladder clock ladder letter rain ποίημα quince.', 1424995200123456, 1700000000308000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -44, NULL, 0, 0, 1, 1, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 56'),
(133, 4, '0D79A678-A5F4-433B-9048-F3D4F0A652B2', 'Entry 57', 'çay ladder ποίημα garden straße çay Ærø coat naïve coat.', 1425081600123456, 1700000000310000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001161000, -43, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(134, 5, '22DBD413-3E95-4066-AB56-E0C50B078E87', 'Entry 58', '東京 Übung coat letter bread straße 서울.', 1425168000123456, 1700000000312000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, -42, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 58'),
(135, 1, 'A675B924-21B5-4964-B868-FF2469BDD6B7', 'Entry 59', 'Übung river window garden coat.', 1425254400123456, 1700000000314000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -41, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, 13, 'entry 59'),
(136, 2, '8527E0AA-E75A-4C6D-8BC8-A6E47B4E9939', 'Entry 60', 'Ærø coat window garden quince letter coat 東京.', 1425340800123456, 1700000000318000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -40, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, 38, NULL, NULL, 'entry 60'),
(137, 3, '50FED34D-CED9-4B7A-9406-2DD56C87F35E', 'Entry 61', 'Übung ποίημα 東京 東京 rain.', 1425427200123456, 1700000000320000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -39, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 61'),
(138, 4, '9B745A7F-2361-4121-AECA-21AF501C1B56', 'Entry 62', 'tea ladder ladder bread 東京 quince.', 1425513600123456, 1700000000322000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -38, NULL, 1, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 62'),
(139, 5, 'B78AC6F4-2C57-4C0A-A3AE-22C4EBB91ACB', 'Entry 63', 'garden ποίημα Ærø coat.', 1425600000123456, 1700000000324000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -37, NULL, 0, 0, 1, 1, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 63'),
(141, 2, 'FE688C99-E511-4AF8-B150-6FEE092C0E8A', 'Entry 64', 'Übung ποίημα 東京 coat ladder план çay naïve window ladder coat.', 1425686400123456, 1700000000326000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -36, NULL, 0, 0, 0, 0, 0, 3, 0, NULL, NULL, NULL, NULL, 14, 'entry 64'),
(142, 3, '3C58AEEE-7A24-48DE-AC4D-2026DE74C6B0', 'Entry 65', 'bread clock coat план river coat ladder coat.', 1425772800123456, 1700000000328000, 'Zoë’s test machine', 1, 1, 1700000001165000, 0, 1700000001166000, 0, 0, NULL, 0, NULL, -35, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 65'),
(143, 4, '587D4BAE-CBDA-4503-980F-499D9A97A72E', 'Entry 66', 'ποίημα window coat 서울 garden.', 1425859200123456, 1700000000330000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001167000, 0, NULL, -34, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, 17, NULL, NULL, 'entry 66'),
(144, 5, 'B8AEC95C-22E5-4DCE-B4FB-596AC8F6D915', 'Entry 67', 'Ærø rain straße.', 1425945600123456, 1700000000332000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -33, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 67'),
(145, 1, '9DE4181A-A581-4027-9064-4CB03534B7A1', 'Entry 68', 'ποίημα çay clock 서울 clock river garden mañana.', 1426032000123456, 1700000000334000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001168000, 0, 0, NULL, 0, NULL, -32, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 68'),
(146, 2, '81F08F03-AA8D-4EF1-8D90-0D434156FE71', 'Entry 69', 'план mañana tea garden.', 1426118400123456, 1700000000336000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -31, NULL, 0, 1, 0, 0, 1, 0, 0, NULL, NULL, 42, NULL, 15, 'entry 69'),
(147, 3, 'BCE9D585-5644-4D79-B2EC-82FD5DCFD8E1', 'Entry 70', NULL, 1426204800123456, 1700000000338000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -30, NULL, 0, 0, 0, 1, 0, 0, 1, 1700000000338000, 'ED4C0B4B-F652-492F-B33C-7B8CD07EACDA', NULL, 1, NULL, NULL),
(148, 4, '7B81DE1D-E225-4AAD-81C5-D723EB60E631', 'Entry 71', 'window Kitchen ladder 東京.', 1426291200123456, 1700000000340000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -29, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 71'),
(149, 5, '36D17DD7-0187-4F75-86DA-E8C18E34FA5D', 'Entry 72', 'letter Kitchen Kitchen 東京 bread garden çay window ladder naïve.', 1426377600123456, 1700000000342000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -28, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, 17, NULL, NULL, 'entry 72'),
(151, 2, 'B48AE2A7-43B8-4B90-9857-F8524DF91C59', 'Entry 73', 'river bread Übung tea rain 서울 garden rain mañana naïve.', 1426464000123456, 1700000000344000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -27, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 73'),
(152, 3, '3F7D6F06-7BBB-4706-B29D-CB64B7439CBF', 'Entry 74', 'tea Übung bread river.', 1426550400123456, 1700000000348000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -26, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, 16, 'entry 74'),
(153, 4, '6CDE0007-CD4C-427B-ABAC-55E783303B49', 'Entry 75', '東京 clock naïve Übung.', 1426636800123456, 1700000000350000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -25, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, 18, NULL, NULL, 'entry 75'),
(154, 5, '687142D4-6233-4188-8734-20C9D7C31DC9', 'Entry 76', 'tea river tea bread window naïve.', 1426723200123456, 1700000000354000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001169000, -24, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(155, 1, '8A4129B5-535F-48A8-B38A-EA3AFD97D92C', 'Entry 77', 'Kitchen Kitchen mañana straße clock river bread rain naïve mañana.', 1426809600123456, 1700000000356000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001170000, 0, NULL, -23, NULL, 0, 0, 0, 1, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 77'),
(156, 2, '650BF535-78C2-4187-AD11-40EF7A1EB0E9', 'Entry 78', 'bread çay quince ladder Kitchen план.', 1426896000123456, 1700000000358000, 'Zoë’s test machine', 1, 1, 1700000001174000, 0, 1700000001175000, 0, 0, NULL, 0, NULL, -22, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, 18, NULL, NULL, 'entry 78'),
(157, 3, '8BCAD565-913A-4664-92D0-1CD69E414CD2', 'Entry 79', 'rain garden Übung window mañana 서울.', 1426982400123456, 1700000000360000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -21, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, 17, 'entry 79'),
(158, 4, '9423E841-A2EF-49EA-8568-F22A3A521CC1', 'Entry 80', 'mañana çay Kitchen план.', 1427068800123456, 1700000000362000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -20, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 80'),
(159, 5, 'FC59ECB0-D3CA-4F03-A8C6-CB4406780C7E', 'Entry 81', 'straße tea letter bread garden coat window.', 1427155200123456, 1700000000364000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -19, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 81'),
(161, 2, '4225772C-DEE6-4D6C-A1BA-62B78BE3F8AC', 'Entry 82', 'coat Kitchen coat rain.', 1427241600123456, 1700000000366000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -18, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(162, 3, '04D735DD-A70D-4B36-8508-756C2213CFBC', 'Entry 83', 'Ærø coat straße bread Übung план river naïve garden.', 1427328000123456, 1700000000368000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -17, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 83'),
(163, 4, 'DC1DA55D-265A-43D2-B1A7-BD771C6D634A', 'Entry 84', 'quince 東京 Kitchen план Übung clock.', 1427414400123456, 1700000000372000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -16, NULL, 0, 0, 1, 1, 1, 2, 0, NULL, NULL, NULL, NULL, 18, 'entry 84'),
(164, 5, '0DCADD1D-A39A-400A-9134-9E4DC05DA428', 'Entry 85', 'Übung river ποίημα çay ladder window letter Kitchen.', 1427500800123456, 1700000000374000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001180000, 0, 0, NULL, 0, NULL, -15, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 85'),
(165, 1, '99437D74-0A1D-40B0-878D-7E5287C96DB7', 'Entry 86', NULL, 1427587200123456, 1700000000376000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -14, NULL, 0, 0, 0, 0, 1, 1, 1, 1700000000376000, '3FDDE58C-0CDE-4F8B-A8A2-D85BCF1230C4', NULL, 1, NULL, 'entry 86'),
(166, 2, 'DF0B1F1E-F817-49EF-8036-9F65FD868C1A', 'Entry 87', 'ladder Kitchen план ladder Übung 東京.', 1427673600123456, 1700000000378000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, -13, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 87'),
(167, 3, '68B7DA27-EECD-4EF9-839A-802280CA1DCA', 'Entry 88', 'план river план tea mañana 東京.', 1427760000123456, 1700000000382000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001181000, 0, NULL, -12, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 88'),
(168, 4, '4482C48D-ED3A-4EFA-AD6C-EAC86AB65F00', 'Entry 89', 'bread Übung straße window letter coat 서울 letter naïve.', 1427846400123456, 1700000000384000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -11, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, 19, NULL),
(169, 5, '16DF2EC3-F8A4-4802-8921-45246BE239F7', 'Entry 90', 'ladder bread window straße clock Ærø coat coat river ποίημα.', 1427932800123456, 1700000000386000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -10, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 17, NULL, NULL, 'entry 90'),
(171, 2, 'BFF5D666-C164-4C45-8165-1DEB956C1EFE', 'Entry 91', 'window naïve coat naïve Übung Kitchen bread bread letter ladder 東京.', 1428019200123456, 1700000000388000, 'Zoë’s test machine', 2, 1, 1700000001184000, 0, 1700000001185000, 0, 0, NULL, 0, NULL, -9, NULL, 0, 0, 1, 1, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 91'),
(172, 3, 'FB11BFBD-AADA-42A0-B704-069449AFB5EE', 'Entry 92', 'ποίημα clock ladder naïve план clock Ærø quince.', 1428105600123456, 1700000000390000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -8, NULL, 0, 1, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 92'),
(173, 4, '236F6031-4890-41ED-A1DD-53A3143287DB', 'Entry 93', '東京 garden çay garden çay rain 서울 garden.', 1428192000123456, 1700000000392000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -7, NULL, 1, 0, 0, 0, 2, 1, 0, NULL, NULL, 18, NULL, NULL, 'entry 93'),
(174, 5, 'F337032F-6F5E-4FF7-9EFB-F9BB431694F7', 'Entry 94', '서울 straße quince letter ladder 東京 coat garden çay.', 1428278400123456, 1700000000396000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -6, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, 21, 'entry 94'),
(175, 1, '8F47735F-7E8C-4B25-A107-4DFC910D14A6', 'Entry 95', 'bread Ærø coat Ærø mañana ladder garden rain tea naïve.', 1428364800123456, 1700000000400000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001186000, -5, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(176, 2, '84819386-B08F-436D-A054-697B3CF4CACF', 'Entry 96', 'tea ποίημα 東京 rain bread.', 1428451200123456, 1700000000402000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -4, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, 17, NULL, NULL, 'entry 96'),
(177, 3, '5AB6A167-615A-4D94-ACA4-3D0D6FBD00A4', 'Entry 97', 'Kitchen çay çay çay rain 서울.', 1428537600123456, 1700000000404000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -3, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 97'),
(178, 4, 'EFC764E8-E8F3-486D-9CED-475D75889BEA', 'Entry 98', 'garden rain 東京 Übung 東京 garden Kitchen 東京 bread.', 1428624000123456, 1700000000406000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -2, NULL, 0, 0, 0, 1, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 98'),
(179, 5, '3116F6F8-B84D-4DE0-9C88-C3F6EB96173C', 'Entry 99', 'coat Kitchen план river tea rain 東京.', 1428710400123456, 1700000000410000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001187000, 0, NULL, -1, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 17, NULL, 22, 'entry 99'),
(181, 2, 'FF770585-4523-4F2E-BF04-903CAA3B0E82', 'Entry 100', 'bread garden план Kitchen letter coat Übung clock ladder river çay.', 1428796800123456, 1700000000412000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 100'),
(182, 3, '86618597-421F-4871-B63D-DD1D7A2835B8', 'Entry 101', 'window 東京 clock garden.', 1428883200123456, 1700000000414000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 1, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(183, 4, 'B3B85F30-4581-48E8-B38B-B78E49D9CD47', 'Entry 102', NULL, 1428969600123456, 1700000000416000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001191000, 0, 0, NULL, 0, NULL, 2, NULL, 0, 0, 0, 0, 0, 0, 1, 1700000000416000, '688081E4-EA24-490D-AB9A-4BDFCD08CACD', 12, 1, NULL, 'entry 102'),
(184, 5, '48302DDF-F9E3-484B-BCAC-F349BAF0E440', 'Entry 103', 'çay bread mañana ποίημα naïve clock letter clock mañana window coat.', 1429056000123456, 1700000000420000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 3, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 103'),
(185, 1, 'B76D40B0-A9A5-49D3-8A67-EE587C5A4C52', 'Entry 104', 'Kitchen quince 東京 garden 서울.', 1429142400123456, 1700000000422000, 'Zoë’s test machine', 2, 1, 1700000001192000, 0, 1700000001193000, 0, 0, NULL, 0, NULL, 4, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, 23, 'entry 104'),
(186, 2, '635C1D84-33DB-4110-94F6-2D064E83CCE8', 'Entry 105', 'rain naïve quince tea çay tea rain.', 1429228800123456, 1700000000426000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 5, NULL, 0, 0, 0, 1, 0, 0, 0, NULL, NULL, 12, NULL, NULL, 'entry 105'),
(187, 3, '025C0365-B578-4D0E-8373-332E4478F531', 'Entry 106', 'ladder mañana Kitchen tea coat çay letter clock clock.', 1429315200123456, 1700000000428000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 6, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 106'),
(188, 4, '6A055117-B31B-4EF1-B029-2B1B43F46C7D', 'Entry 107', 'Ærø Ærø quince bread Übung.', 1429401600123456, 1700000000430000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 7, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 107'),
(189, 5, 'FE10C8D0-97BE-430D-8CFE-D34152DBE9A1', 'Entry 108', 'naïve ladder naïve garden Kitchen straße window coat ladder clock.', 1429488000123456, 1700000000434000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 8, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 17, NULL, NULL, NULL),
(191, 2, 'FF4023D5-FC0B-4416-8EEB-FACBED7A9A31', 'Entry 109', 'letter Kitchen naïve çay план straße naïve.', 1429574400123456, 1700000000436000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 9, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, 24, 'entry 109'),
(192, 3, 'EC387D2D-58D2-40DF-8CF5-2108E14139FF', 'Entry 110', 'straße ladder Übung garden river coat.', 1429660800123456, 1700000000438000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001194000, 0, NULL, 10, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 110'),
(193, 4, 'D4330E9D-4135-482E-A7FA-2F1FD6956347', 'Entry 111', 'letter bread Kitchen garden rain 東京 tea garden çay naïve.', 1429747200123456, 1700000000440000, 'Zoë’s "old" telephone 📱', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 11, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 18, NULL, NULL, 'entry 111'),
(194, 5, 'D31D2B9D-0AB8-4A3A-8B11-561B7B78B177', 'Entry 112', 'план naïve mañana coat letter 東京 quince.', 1429833600123456, 1700000000442000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 12, NULL, 0, 0, 1, 1, 0, 3, 0, NULL, NULL, NULL, NULL, NULL, 'entry 112'),
(195, 1, 'C1F5A1F3-778C-4FD3-9362-C4F25ACD4CB7', 'Entry 113', 'план bread quince river çay.', 1429920000123456, 1700000000444000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 13, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 113'),
(196, 2, '02A3E1F8-1D9C-4A09-BC9C-6D2BFBBF033B', 'Entry 114', 'ποίημα letter 서울 naïve window mañana.', 1430006400123456, 1700000000448000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001195000, 14, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, 25, NULL),
(197, 3, '0BE731E8-0460-4D2E-9D80-D1944D3DB2C5', 'Entry 115', 'coat 東京 garden window tea Ærø naïve.', 1430092800123456, 1700000000452000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 15, NULL, 0, 1, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 115'),
(198, 4, '1E57766E-15F5-473C-B7BD-D07871FCC386', 'Entry 116', 'straße план river clock 서울 Ærø straße river window çay tea.', 1430179200123456, 1700000000454000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 16, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 116'),
(199, 5, '76A092D9-48B4-4699-A0C8-EF92C2303398', 'Entry 117', 'letter river ποίημα coat clock clock 東京 ποίημα Ærø.', 1430265600123456, 1700000000458000, 'Zoë’s test machine', 2, 1, 1700000001199000, 0, 1700000001200000, 0, 0, NULL, 0, NULL, 17, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 18, NULL, NULL, 'entry 117'),
(201, 2, '16039C55-929E-4386-91BF-2A105EED841A', 'Entry 118', NULL, 1430352000123456, 1700000000460000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 18, NULL, 0, 0, 0, 0, 2, 1, 1, 1700000000460000, 'CD7FE54D-8A86-4605-877C-ADADCB1F260A', NULL, 1, NULL, 'entry 118'),
(202, 3, '5BCD7587-9841-4124-9DB3-D92E116AF7AC', 'Entry 119', 'çay letter quince clock tea naïve garden 서울 mañana clock план.', 1430438400123456, 1700000000464000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001205000, 0, 0, NULL, 0, NULL, 19, NULL, 0, 0, 1, 1, 0, 0, 0, NULL, NULL, NULL, NULL, 26, 'entry 119'),
(203, 4, '981A1BF1-C70D-4996-A147-3CA43138FDE3', 'Entry 120', '서울 window Ærø ladder rain letter bread 東京 ladder.', 1430524800123456, 1700000000466000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 20, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, 17, NULL, NULL, NULL),
(204, 5, '30CDCEAF-38FB-4F0B-9220-9E8116D72E64', 'Entry 121', 'coat naïve tea.', 1430611200123456, 1700000000470000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001206000, 0, NULL, 21, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 121'),
(205, 1, '158A418A-1AFA-4ABE-B0FF-64675686E160', 'Entry 122', 'garden çay Übung naïve çay Übung план план garden.', 1430697600123456, 1700000000472000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 22, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 122'),
(206, 2, '766970D4-3DA0-4B6F-A053-53173C3B1BB7', 'Entry 123', 'mañana ladder план straße.', 1430784000123456, 1700000000474000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 23, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 123'),
(207, 3, 'EE2FD44D-3F37-4B61-AD1F-91C88C275337', 'Entry 124', 'Kitchen rain Übung garden window.', 1430870400123456, 1700000000478000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 24, NULL, 1, 0, 0, 0, 0, 3, 0, NULL, NULL, NULL, NULL, 27, 'entry 124'),
(208, 4, 'AD376CB7-0DC6-4656-9415-401C6F4D1554', 'Entry 125', 'window river ladder план naïve mañana quince Ærø.', 1430956800123456, 1700000000480000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 25, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 125'),
(209, 5, '87DCCBF8-BD13-4F02-9C8D-E06D3C440F05', 'Entry 126', 'Kitchen tea ladder план naïve mañana letter bread garden план straße.', 1431043200123456, 1700000000484000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 26, NULL, 0, 0, 0, 1, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 126'),
(211, 2, 'C20FAC6B-C597-41F7-9085-DEF074016220', 'Entry 127', 'çay Übung quince ποίημα rain letter mañana çay garden.', 1431129600123456, 1700000000488000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 27, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 127'),
(212, 3, 'CF74E2B6-7B0B-439C-93C0-0DDBF113FB46', 'Entry 128', 'çay план river.', 1431216000123456, 1700000000492000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 28, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 128'),
(213, 4, 'E5BF78E6-844D-43FD-9490-577190FFDD60', 'Entry 129', 'garden çay çay çay ladder tea naïve straße river план.', 1431302400123456, 1700000000496000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 29, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, 17, NULL, 28, 'entry 129'),
(214, 5, '17B936B1-F483-4BB3-8A7B-0FEAE0D1D88F', 'Entry 130', 'çay bread ladder straße mañana Kitchen bread.', 1431388800123456, 1700000000500000, 'Zoë’s test machine', 1, 1, 1700000001209000, 0, 1700000001210000, 0, 0, NULL, 0, NULL, 30, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 130'),
(215, 1, '0686C99C-7BFF-4AA2-A7DF-DAC27F0450D8', 'Entry 131', 'Ærø garden coat tea 東京 서울 Kitchen çay naïve план.', 1431475200123456, 1700000000502000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 31, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 131'),
(216, 2, '429FBF5F-7BA4-4202-9A61-91C03B77C8A9', 'Entry 132', 'ποίημα çay bread quince letter.', 1431561600123456, 1700000000504000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001211000, 0, NULL, 32, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, 18, NULL, NULL, 'entry 132'),
(217, 3, 'D573C81E-FE37-438F-98D5-06BC8AC4B637', 'Entry 133', 'quince tea window.', 1431648000123456, 1700000000508000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001212000, 33, NULL, 0, 0, 0, 1, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(218, 4, '9EDC8599-EA36-4E4D-9DAA-3F40EE0B456A', 'Entry 134', NULL, 1431734400123456, 1700000000510000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 34, NULL, 0, 0, 0, 0, 1, 1, 1, 1700000000510000, 'A963DE2D-8094-4256-BFFB-54661B1614FF', NULL, 1, 29, 'entry 134'),
(219, 5, '00D8E0A7-3BAC-4C6C-8E01-130D542C1100', 'Entry 135', 'ποίημα çay ladder Ærø.', 1431820800123456, 1700000000512000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 35, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, 19, NULL, NULL, 'entry 135'),
(221, 2, '0D709656-7545-4CF9-8F94-305A7FF134D1', 'Entry 136', 'план straße Kitchen.', 1431907200123456, 1700000000514000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001217000, 0, 0, NULL, 0, NULL, 36, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 136'),
(222, 3, '1060EDC4-FDAE-43D4-8716-D71DB60DE062', 'Entry 137', 'bread naïve letter mañana Übung tea.', 1431993600123456, 1700000000516000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 37, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 137'),
(223, 4, 'D6A7811A-D2E1-44D6-A3F3-347AF3603EAA', 'Entry 138', 'ladder letter straße bread quince.', 1432080000123456, 1700000000518000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 38, NULL, 0, 1, 0, 0, 2, 0, 0, NULL, NULL, 18, NULL, NULL, 'entry 138'),
(224, 5, 'E7E528F1-2716-492B-9A87-0491D4523E9A', 'Entry 139', 'tea ποίημα mañana coat 東京 mañana.', 1432166400123456, 1700000000522000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 39, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, 31, NULL),
(225, 1, '46C4057D-C4D4-48CF-A9FA-54D754AC3C2C', 'Entry 140', 'garden 東京 river bread rain coat straße quince.', 1432252800123456, 1700000000524000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 40, NULL, 0, 0, 1, 1, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 140'),
(226, 2, '91D375A9-91FA-4B9B-BAE9-4B14EF51C10C', 'Entry 141', 'straße Ærø quince straße naïve coat mañana 서울.', 1432339200123456, 1700000000526000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 41, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 141'),
(227, 3, '5D31E547-2EE2-42DE-A16A-A7AE424C3B89', 'Entry 142', 'straße coat clock ladder mañana.', 1432425600123456, 1700000000528000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 42, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 142'),
(228, 4, '2D662F11-3F03-4597-85FD-67F762BD2B26', 'Entry 143', 'letter clock tea Ærø.', 1432512000123456, 1700000000530000, 'Zoë’s test machine', 1, 1, 1700000001219000, 0, 1700000001220000, 0, 1, 1700000001218000, 0, NULL, 43, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 143'),
(229, 5, '00823ABB-3DF7-41CA-A6D9-45F60F70F094', 'Entry 144', 'straße çay rain bread.', 1432598400123456, 1700000000532000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 44, NULL, 0, 0, 0, 0, 0, 3, 0, NULL, NULL, 18, NULL, 32, 'entry 144'),
(231, 2, '69A88A8E-D105-4C69-BEA8-A3B1117D7E8F', 'Entry 145', 'quince ποίημα river Ærø straße Ærø clock план window 東京 Übung.', 1432684800123456, 1700000000536000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 45, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(232, 3, '680763D1-A6AD-4BAF-830B-2F93F10998A8', 'Entry 146', 'clock Ærø 東京 東京 план ladder Übung tea 서울 çay план.', 1432771200123456, 1700000000538000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 46, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 146'),
(233, 4, 'FE93882C-C276-4623-BAC6-3528C5DCDA12', 'Entry 147', 'Kitchen Übung Übung план river Übung rain mañana naïve Übung Übung.', 1432857600123456, 1700000000540000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 47, NULL, 0, 0, 1, 1, 1, 1, 0, NULL, NULL, 17, NULL, NULL, 'entry 147'),
(234, 5, '3943CB3A-B62C-4EBE-B0EA-E15DBD7338AD', 'Entry 148', 'letter straße ladder.', 1432944000123456, 1700000000544000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 48, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 148'),
(235, 1, '5A5A92CC-4B3E-4465-A643-2CDAA578957D', 'Entry 149', 'tea river quince.', 1433030400123456, 1700000000546000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 49, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, NULL, NULL, 33, 'entry 149'),
(236, 2, '47FC98B8-B883-42ED-8310-25D3EFCBB712', 'Entry 150', NULL, 1433116800123456, 1700000000548000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 50, NULL, 0, 0, 0, 0, 1, 0, 1, 1700000000548000, '17347296-EB21-4D27-BB3A-0AC5886D6BDD', 18, 1, NULL, 'entry 150'),
(237, 3, 'F4B79B2B-FDF9-4641-89B7-0D510BBA4C3B', 'Entry 151', '서울 window Kitchen.', 1433203200123456, 1700000000550000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 51, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 151'),
(238, 4, 'F10AA534-EC24-45A0-876F-7071AF160049', 'Entry 152', 'window Ærø window tea river Kitchen план clock.', 1433289600123456, 1700000000552000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001221000, 52, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(239, 5, '6D8504DC-CA73-4D63-A84D-EC00A15132D5', 'Entry 153', '서울 ladder 東京 東京 Ærø clock 東京 ladder ποίημα quince план.', 1433376000123456, 1700000000554000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001222000, 0, 0, NULL, 0, NULL, 53, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 153'),
(241, 2, '6FE4A91A-5F58-473E-B287-3A5FE5B5106C', 'Entry 154', 'straße çay Übung 東京 план rain 서울.', 1433462400123456, 1700000000556000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001223000, 0, NULL, 54, NULL, 0, 0, 0, 1, 0, 0, 0, NULL, NULL, NULL, NULL, 34, 'entry 154'),
(242, 3, 'C89BAB23-9F64-43CC-B23A-E38114000DD2', 'Entry 155', 'quince план window.', 1433548800123456, 1700000000558000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 55, NULL, 1, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 155'),
(243, 4, '1251C52B-A3B7-474C-BA5A-AFAD93051A6E', 'Entry 156', 'mañana bread Übung letter window bread Übung quince naïve quince çay.', 1433635200123456, 1700000000562000, 'Zoë’s test machine', 2, 1, 1700000001224000, 0, 1700000001225000, 0, 0, NULL, 0, NULL, 56, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 156'),
(244, 5, '43F76105-B7E8-4183-869B-8E4224AE39E9', 'Entry 157', '東京 tea bread Übung.', 1433721600123456, 1700000000564000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 57, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 157'),
(245, 1, '08C56AD7-F3A7-4993-BB60-E634D104E7EF', 'Entry 158', '서울 mañana Kitchen straße garden rain çay.', 1433808000123456, 1700000000566000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 58, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(246, 2, 'D9D1E7FC-C4D7-47F5-AAC3-202506C8F09E', 'Entry 159', 'план Ærø 東京 clock план garden window garden quince.', 1433894400123456, 1700000000568000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 59, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, 12, NULL, 35, 'entry 159'),
(247, 3, '9F63F2CA-EB4B-4883-B0DB-4C8F5D4D84C1', 'Entry 160', 'tea river 東京 서울.', 1433980800123456, 1700000000570000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 60, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 160'),
(248, 4, 'A4D38A87-2EF0-4D4F-97AD-16A3F50C5CBE', 'Entry 161', 'straße garden tea.', 1434067200123456, 1700000000572000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 61, NULL, 0, 1, 0, 1, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 161'),
(249, 5, '7EE5FDB4-2296-424D-AEE5-6B1151BE5552', 'Entry 162', '東京 tea letter coat window 서울 Ærø clock.', 1434153600123456, 1700000000574000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 62, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 38, NULL, NULL, 'entry 162'),
(251, 2, '5E60B339-3E0B-4C33-933D-30558DEB15BB', 'Entry 163', 'straße naïve ladder.', 1434240000123456, 1700000000576000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 63, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 163'),
(252, 3, 'ADBBC4CD-B562-4B2C-B50C-D6220CF0D37C', 'Entry 164', 'garden straße Übung window.', 1434326400123456, 1700000000578000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 64, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, 36, NULL),
(253, 4, '561D88F5-46CB-4BA0-BF8F-30C4B84785D9', 'Entry 165', 'clock çay garden bread naïve план coat Ærø Ærø ladder.', 1434412800123456, 1700000000580000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001226000, 0, NULL, 65, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, 12, NULL, NULL, 'entry 165'),
(254, 5, 'A40D7AF9-6E12-4C22-9A78-43A76A35100E', 'Entry 166', NULL, 1434499200123456, 1700000000582000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 66, NULL, 0, 0, 0, 0, 1, 2, 1, 1700000000582000, '6075B814-FBD4-4903-A1F8-8761329EE2FC', NULL, 1, NULL, 'entry 166'),
(255, 1, 'C862B193-E285-4391-AB18-A2A9E788E1C2', 'Entry 167', 'çay rain river Übung window letter.', 1434585600123456, 1700000000584000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 67, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 167'),
(256, 2, 'B027335C-66AB-4BC5-A6A5-308F6D660649', 'Entry 168', 'coat rain clock rain bread straße.', 1434672000123456, 1700000000588000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 68, NULL, 0, 0, 1, 1, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 168'),
(257, 3, '48CB79B7-4E4F-446C-8B26-9778684644FB', 'Entry 169', 'план tea letter bread tea.', 1434758400123456, 1700000000590000, 'Zoë’s test machine', 2, 1, 1700000001227000, 0, 1700000001228000, 0, 0, NULL, 0, NULL, 69, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, 37, 'entry 169'),
(258, 4, 'CA43DE85-00DB-43DF-AE49-48C9068B283D', 'Entry 170', 'window tea Kitchen çay Kitchen Übung.', 1434844800123456, 1700000000592000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001233000, 0, 0, NULL, 0, NULL, 70, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 170'),
(259, 5, '3C54C961-915C-4A52-9962-4826FA0154C9', 'Entry 171', 'Kitchen Kitchen garden.', 1434931200123456, 1700000000594000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001234000, 71, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, 12, NULL, NULL, NULL),
(261, 2, '8C5890AD-06C8-4D23-937E-D2134E2451C6', 'Entry 172', 'mañana naïve 서울 ποίημα naïve mañana Ærø.', 1435017600123456, 1700000000598000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 72, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 172'),
(262, 3, '4CE4F4D8-C8EF-4BF6-BB7A-0B0454E6B638', 'Entry 173', 'mañana план ladder window clock bread 서울 mañana 서울 Kitchen ποίημα.', 1435104000123456, 1700000000600000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 73, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 173'),
(263, 4, '8882DD3F-8F1C-46DB-B6A1-50923F2B943F', 'Entry 174', 'mañana quince coat mañana coat window 東京 window Übung.', 1435190400123456, 1700000000602000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 74, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, 17, NULL, 38, 'entry 174'),
(264, 5, 'C0A79F5E-C179-4B04-BC9F-BE88FD5ED4BF', 'Entry 175', 'ladder Ærø bread clock window coat ποίημα Kitchen ποίημα.', 1435276800123456, 1700000000604000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 75, NULL, 0, 0, 1, 1, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 175'),
(265, 1, '3823512F-FE89-4860-869F-6DD968F29B0D', 'Entry 176', 'window 서울 Kitchen Ærø clock.', 1435363200123456, 1700000000606000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001235000, 0, NULL, 76, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 176'),
(266, 2, '6C6A9CA2-E0EE-4111-BAB5-6B367C6A15C3', 'Entry 177', 'mañana letter план mañana.', 1435449600123456, 1700000000608000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 77, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(267, 3, 'DD06E1E1-B5E9-44AA-B76F-BC1E45CA2911', 'Entry 178', 'ποίημα bread naïve.', 1435536000123456, 1700000000610000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 78, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 178'),
(268, 4, '453174BD-C0B3-4EB8-9FD3-5A248B71E1FE', 'Entry 179', 'tea 東京 quince rain mañana.', 1435622400123456, 1700000000612000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 79, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, 39, 'entry 179'),
(269, 5, 'EBA21B36-297F-46F2-A38B-15B1F3DCA90D', 'Entry 180', 'bread letter coat mañana bread naïve.', 1435708800123456, 1700000000614000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 80, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, 17, NULL, NULL, 'entry 180'),
(271, 2, '20ABF84B-1E7C-487C-BDFC-79F38DBB1BA5', 'Entry 181', 'Übung bread quince letter window river coat ποίημα план mañana 서울.', 1435795200123456, 1700000000616000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 81, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 181'),
(272, 3, 'AF3C4050-1946-4533-80BF-2157BB1AD364', 'Entry 182', NULL, 1435881600123456, 1700000000618000, 'Zoë’s test machine', 1, 1, 1700000001241000, 0, 1700000001242000, 0, 0, NULL, 0, NULL, 82, NULL, 0, 0, 0, 1, 1, 0, 1, 1700000000618000, 'B3AF8797-94F3-4F20-A48B-2CF05A5C2851', NULL, 1, NULL, 'entry 182'),
(273, 4, '37E004F3-3D0C-43B8-B371-CD4E9A01201D', 'Entry 183', 'naïve rain ποίημα garden план план quince.', 1435968000123456, 1700000000620000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 83, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(274, 5, '65A47A1C-00A4-4F04-B8A8-6435E6530A50', 'Entry 184', 'naïve naïve river Übung window bread ladder 東京.', 1436054400123456, 1700000000624000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 84, NULL, 0, 1, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, 41, 'entry 184'),
(275, 1, '087F33AF-B407-47CD-96C6-7077C320DB35', 'Entry 185', 'letter план window Kitchen quince Übung clock çay letter çay.', 1436140800123456, 1700000000626000, 'Zoë’s "old" telephone 📱', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 85, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 185'),
(276, 2, '28F64F03-F375-4BE5-9E89-BCDDCC12C6C2', 'Entry 186', 'coat coat tea window mañana план naïve Kitchen tea garden.', 1436227200123456, 1700000000630000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 86, NULL, 1, 0, 0, 0, 0, 0, 0, NULL, NULL, 17, NULL, NULL, 'entry 186'),
(277, 3, 'DEEA13BD-E0A1-45DF-9967-440C3DCC378E', 'Entry 187', 'bread garden clock clock garden rain coat quince rain.', 1436313600123456, 1700000000632000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001247000, 0, 1, 1700000001243000, 0, NULL, 87, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 187'),
(278, 4, '5C0F1070-6CEA-4230-A92C-4187D9086D5C', 'Entry 188', 'mañana 서울 tea bread 서울 letter ποίημα coat.', 1436400000123456, 1700000000634000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 88, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 188'),
(279, 5, 'EB4BF6E1-9DE6-41D9-A008-45DAD3A33919', 'Entry 189', 'ποίημα ποίημα ποίημα rain 서울 naïve çay window garden garden.', 1436486400123456, 1700000000636000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 89, NULL, 0, 0, 0, 1, 0, 1, 0, NULL, NULL, 18, NULL, 42, 'entry 189'),
(281, 2, '021D1B32-DF9B-4680-B63E-8AF03865C9B9', 'Entry 190', 'straße ladder Übung quince Ærø çay Übung.', 1436572800123456, 1700000000640000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001248000, 90, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 190'),
(282, 3, '0B84E9B0-6494-4408-9994-27D9018A1EEC', 'Entry 191', 'bread Übung план rain.', 1436659200123456, 1700000000642000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 91, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 191'),
(283, 4, 'B3EFEA61-52B5-4C0F-9D07-38325DFC8630', 'Entry 192', 'rain çay Übung letter straße.', 1436745600123456, 1700000000644000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 92, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, 18, NULL, NULL, 'entry 192'),
(284, 5, 'B2F04263-6AE4-433C-800A-FA47BF278AB3', 'Entry 193', 'letter coat Übung mañana rain.', 1436832000123456, 1700000000646000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 93, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 193'),
(285, 1, '8CB03EB9-419E-4DA5-BBB0-DB61005F24E9', 'Entry 194', '東京 rain clock naïve çay window 서울.', 1436918400123456, 1700000000650000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 94, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, 43, 'entry 194'),
(286, 2, 'C234C59B-EB20-43B0-9B73-112480BD0F9D', 'Entry 195', 'mañana план 東京 서울 çay Ærø Ærø Übung 서울.', 1437004800123456, 1700000000654000, 'Zoë’s test machine', 1, 1, 1700000001250000, 0, 1700000001251000, 0, 0, NULL, 0, NULL, 95, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, 17, NULL, NULL, 'entry 195'),
(287, 3, '1A62ED5F-0BA0-4F78-9AF3-E0CBF7F07BD4', 'Entry 196', 'ladder rain 東京 mañana naïve Kitchen naïve rain tea.', 1437091200123456, 1700000000656000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 96, NULL, 0, 0, 1, 1, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(288, 4, '56511C12-A27B-42D6-AC66-C6E0617EB11A', 'Entry 197', 'план naïve 東京 Kitchen coat ποίημα 서울 letter mañana letter window.', 1437177600123456, 1700000000658000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 97, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 197'),
(289, 5, '4B43757D-060E-4767-BE96-154DE0511D0D', 'Entry 198', NULL, 1437264000123456, 1700000000660000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001252000, 0, NULL, 98, NULL, 0, 0, 0, 0, 1, 1, 1, 1700000000660000, 'EF928287-3808-44B9-9C89-B893E587EEED', 17, 1, NULL, 'entry 198'),
(291, 2, 'C107CD89-3EE5-4849-9B39-4B6A6A44EFCC', 'Entry 199', 'river tea coat coat.', 1437350400123456, 1700000000662000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 99, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, 44, 'entry 199'),
(292, 3, 'FFDCBCC0-6C29-4954-90DE-E7276F6E3D43', 'Entry 200', 'naïve Ærø план ladder river.', 1437436800123456, 1700000000664000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 100, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 200'),
(293, 4, 'F51C6027-ADA6-4860-881A-515DB0E9C51C', 'Entry 201', 'ποίημα tea 東京 tea tea quince garden mañana coat clock.', 1437523200123456, 1700000000668000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 101, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, 18, NULL, NULL, 'entry 201'),
(294, 5, '69A96A5F-D583-46E7-83D0-2FB79FB4AD0A', 'Entry 202', 'letter çay mañana ποίημα 서울 bread window river 東京 garden coat.', 1437609600123456, 1700000000670000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 102, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(295, 1, '2C68D190-B83B-4A38-9D25-1BAF52CDBE90', 'Entry 203', 'naïve план letter garden straße window çay naïve quince window window.', 1437696000123456, 1700000000672000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 103, NULL, 0, 0, 1, 1, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 203'),
(296, 2, 'F305DFA0-32A8-4278-A3C1-9C1FB32957BE', 'Entry 204', 'rain план 東京 Ærø Ærø ποίημα ladder.', 1437782400123456, 1700000000676000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001256000, 0, 0, NULL, 0, NULL, 104, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 19, NULL, 45, 'entry 204'),
(297, 3, '9C2E1B00-F4FA-4D54-8177-AD4741522C95', 'Entry 205', 'garden план bread ποίημα naïve mañana план mañana bread garden.', 1437868800123456, 1700000000680000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 105, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 205'),
(298, 4, 'EF3DC694-FC7E-4895-A7BB-22FA3F872E0A', 'Entry 206', 'quince Kitchen 서울 план план ποίημα ποίημα naïve bread.', 1437955200123456, 1700000000682000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 106, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 206'),
(299, 5, '860BCBE6-716D-4E40-93A2-A386F8002F04', 'Entry 207', '東京 план Übung mañana.', 1438041600123456, 1700000000684000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 107, NULL, 0, 1, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 207'),
(301, 2, '8E1C1E0E-612B-4B15-831C-019A5BAD4EE8', 'Entry 208', 'ladder план план.', 1438128000123456, 1700000000686000, 'Zoë’s test machine', 2, 1, 1700000001257000, 0, 1700000001258000, 0, 0, NULL, 0, NULL, 108, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(302, 3, 'E2A066A0-AB3B-40E1-B1B2-D1DB1BED14FE', 'Entry 209', 'naïve window letter straße Kitchen.', 1438214400123456, 1700000000688000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001259000, 1, 1700000001260000, 109, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, 46, 'entry 209'),
(303, 4, '2A4D357D-8C7F-4422-84D3-A1E6A46E6CEB', 'Entry 210', 'quince window Kitchen.', 1438300800123456, 1700000000690000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 110, NULL, 0, 0, 0, 1, 2, 0, 0, NULL, NULL, 18, NULL, NULL, 'entry 210'),
(304, 5, '40CAA1D7-4D23-4884-93B9-F8F3D25DB6A8', 'Entry 211', 'ποίημα tea window Ærø clock Übung.', 1438387200123456, 1700000000692000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 111, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 211'),
(305, 1, 'A58F601A-40DE-44BB-A2A1-3672A4F11710', 'Entry 212', 'tea rain Ærø naïve naïve naïve coat naïve bread Kitchen.', 1438473600123456, 1700000000694000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 112, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 212'),
(306, 2, '71876F96-E939-40CB-A2A0-614CB55A44EE', 'Entry 213', 'coat план straße mañana Kitchen garden план river letter mañana.', 1438560000123456, 1700000000698000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 113, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, 17, NULL, NULL, 'entry 213'),
(307, 3, '4C1ED66F-0D1E-46B6-8610-F6B03CBCE6FD', 'Entry 214', NULL, 1438646400123456, 1700000000700000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 114, NULL, 0, 0, 0, 0, 1, 1, 1, 1700000000700000, '8AA71FBD-55E5-48A9-8925-DC03AEBBE480', NULL, 1, 47, 'entry 214'),
(308, 4, '70E2C0D4-B360-40AD-AAAE-6974D85CCDF4', 'Entry 215', 'letter çay çay clock ποίημα ποίημα Übung rain Übung Ærø 서울.', 1438732800123456, 1700000000702000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 115, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(309, 5, '46D7A5C0-30F3-4804-AD31-35142C98EC0A', 'Entry 216', 'clock clock çay window tea.', 1438819200123456, 1700000000704000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 116, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, 18, NULL, NULL, 'entry 216'),
(311, 2, '1ADFA8BC-1957-4ACE-BFF6-6AC4B3F5F36F', 'Entry 217', '東京 naïve 서울.', 1438905600123456, 1700000000706000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 117, NULL, 1, 0, 0, 1, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 217'),
(312, 3, '055E966E-BF4D-45E7-A7C4-91BFC59D7F9B', 'Entry 218', 'bread Kitchen letter.', 1438992000123456, 1700000000710000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 118, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 218'),
(313, 4, '93E1D911-5016-4C31-8426-17C5CFCEE08A', 'Entry 219', 'mañana çay 東京 ποίημα river garden rain çay naïve Übung.', 1439078400123456, 1700000000714000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 119, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, 19, NULL, 48, 'entry 219'),
(314, 5, '61FC4EA3-2627-4543-80D2-989AF77B763F', 'Entry 220', 'çay ladder 서울 ladder river coat rain ladder.', 1439164800123456, 1700000000716000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001261000, 0, NULL, 120, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 220'),
(315, 1, 'E6CE4D2E-0EE4-4311-ADD3-F03CB83151F1', 'Entry 221', 'ladder garden river Übung.', 1439251200123456, 1700000000718000, 'Zoë’s test machine', 2, 1, 1700000001266000, 1, 1700000001272000, 0, 0, NULL, 0, NULL, 121, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(316, 2, '8D196DC4-7C30-492E-BDC4-669DDD28DF88', 'Entry 222', 'tea naïve letter window Kitchen mañana coat bread Übung bread.', 1439337600123456, 1700000000720000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 122, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 18, NULL, NULL, 'entry 222'),
(317, 3, '85FDEFD5-E616-4E57-A88E-AA29A064AE87', 'Entry 223', 'clock mañana rain ladder clock bread window 東京.', 1439424000123456, 1700000000722000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 123, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 223'),
(318, 4, '72A55A5E-C722-45B7-B1CB-43170111F961', 'Entry 224', 'ladder bread Ærø ladder coat coat window mañana tea garden.', 1439510400123456, 1700000000724000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 124, NULL, 0, 0, 1, 1, 0, 0, 0, NULL, NULL, NULL, NULL, 49, 'entry 224'),
(319, 5, '0BDE1233-B4CF-4EF5-8553-56924F7AF546', 'Entry 225', 'Übung straße Ærø naïve quince Übung river bread mañana ποίημα coat.', 1439596800123456, 1700000000728000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 125, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, 17, NULL, NULL, 'entry 225'),
(321, 2, 'F4AE5B47-17C7-4AF2-AC7F-E5B3F483C4EF', 'Entry 226', 'план letter mañana river quince план clock clock.', 1439683200123456, 1700000000730000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 126, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 226'),
(322, 3, 'E84FFB24-3429-4D5B-B3F3-D0AF862EF570', 'Entry 227', 'garden window letter.', 1439769600123456, 1700000000732000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 127, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(323, 4, '90CB14A8-0B90-46B2-9F0D-3F0D1C90F590', 'Entry 228', 'clock window bread Übung letter tea rain mañana план.', 1439856000123456, 1700000000734000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001273000, 128, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 228'),
(324, 5, '16A4782B-6C0D-42C4-87A2-B50FF92D8294', 'Entry 229', 'clock window straße clock ποίημα план naïve 東京.', 1439942400123456, 1700000000736000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 129, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, NULL, NULL, 51, 'entry 229'),
(325, 1, '315F4274-65DA-46A0-917C-F84CC0255A72', 'Entry 230', NULL, 1440028800123456, 1700000000738000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 130, NULL, 0, 1, 0, 0, 1, 1, 1, 1700000000738000, 'EFAB2D5B-DCB6-45A2-99D8-C57DA41B8734', NULL, 1, NULL, 'entry 230'),
(326, 2, 'FBF15648-4153-4F3D-9967-02B2D48C0C2F', 'Entry 231', 'garden ποίημα straße window naïve план mañana.', 1440115200123456, 1700000000742000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001274000, 0, NULL, 131, NULL, 0, 0, 1, 1, 0, 0, 0, NULL, NULL, 18, NULL, NULL, 'entry 231'),
(327, 3, 'C3A1A4A6-AAE3-4AE7-A7A3-44780078F037', 'Entry 232', 'clock letter bread.', 1440201600123456, 1700000000744000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 132, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 232'),
(328, 4, 'BBA4D78C-BF6B-4561-8F0A-A2BAB991A992', 'Entry 233', 'rain çay mañana quince garden rain naïve coat.', 1440288000123456, 1700000000746000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 133, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 233'),
(329, 5, '7C91E9A7-AE86-4F18-90F4-D79ED50FC340', 'Entry 234', 'rain 東京 rain straße Übung mañana çay.', 1440374400123456, 1700000000750000, 'Zoë’s test machine', 2, 1, 1700000001278000, 0, 1700000001279000, 0, 0, NULL, 0, NULL, 134, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, 17, NULL, 52, NULL),
(331, 2, 'F518305A-DF24-46A7-9695-B9C27818A124', 'Entry 235', 'letter naïve straße coat bread.', 1440460800123456, 1700000000752000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 135, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 235'),
(332, 3, '922F7C7B-D7C0-486E-BA7C-DB0174A4736E', 'Entry 236', 'garden naïve Übung naïve quince Übung Ærø çay straße план.', 1440547200123456, 1700000000756000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 136, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 236'),
(333, 4, '43B9EC22-5F20-4D82-81B5-EF1BF4E71CFF', 'Entry 237', 'bread Übung Kitchen Ærø план river Ærø naïve план letter.', 1440633600123456, 1700000000758000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 137, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 237'),
(334, 5, '0D7BF477-6E22-4AD3-B8AC-8B16568C7FDD', 'Entry 238', 'coat 東京 letter ποίημα çay tea 東京 東京.', 1440720000123456, 1700000000760000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001280000, 0, 0, NULL, 0, NULL, 138, NULL, 0, 0, 0, 1, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 238'),
(335, 1, 'ADC26A07-4321-48A7-A328-14AF57F4E6D8', 'Entry 239', 'план mañana garden 서울 Ærø coat çay Ærø.', 1440806400123456, 1700000000764000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 139, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, 53, 'entry 239'),
(336, 2, '9D2BE218-3181-4D07-8038-0C4A95FF1C52', 'Entry 240', 'rain tea naïve ποίημα garden straße quince.', 1440892800123456, 1700000000766000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 140, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, 18, NULL, NULL, NULL),
(337, 3, 'FD4F0B18-C114-4A3E-BAB1-298C30B828F5', 'Entry 241', 'çay 서울 ladder rain clock naïve.', 1440979200123456, 1700000000768000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 141, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 241'),
(338, 4, '6766DC71-A88B-4F6B-BE72-3096E745EFD3', 'Entry 242', 'quince clock 東京 Ærø Ærø rain straße.', 1441065600123456, 1700000000770000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001281000, 0, NULL, 142, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 242'),
(339, 5, '2BDC0E54-FFEE-450B-BEC6-EE9126B4D6A8', 'Entry 243', 'план ladder river naïve clock straße quince river letter quince.', 1441152000123456, 1700000000772000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 143, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, 18, NULL, NULL, 'entry 243'),
(341, 2, '1C9784E6-D482-41D1-A143-4EDC1ABCB665', 'Entry 244', 'çay tea clock window river ποίημα.', 1441238400123456, 1700000000774000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 144, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, 54, 'entry 244'),
(342, 3, '335864D0-3750-4ACA-A556-2A341A351BF0', 'Entry 245', 'clock 東京 서울 naïve.', 1441324800123456, 1700000000776000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 145, NULL, 0, 0, 0, 1, 3, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 245'),
(343, 4, 'C13B6238-DB34-4EAA-AD00-A156AA852AE0', 'Entry 246', NULL, 1441411200123456, 1700000000780000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 146, NULL, 0, 0, 0, 0, 1, 2, 1, 1700000000780000, '053AC0DC-32BC-4CD2-99FB-73361DE97772', NULL, 1, NULL, NULL),
(344, 5, '6D278B9E-C576-42BD-84A5-750C95A043F7', 'Entry 247', 'tea 서울 mañana Ærø 서울 서울 bread Ærø river 東京.', 1441497600123456, 1700000000782000, 'Zoë’s test machine', 1, 1, 1700000001282000, 0, 1700000001283000, 0, 0, NULL, 1, 1700000001284000, 147, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 247'),
(345, 1, 'F3B9B6B3-02F6-421B-8D5E-9990C7F0BE33', 'Entry 248', 'naïve clock bread mañana letter 東京 東京 Kitchen mañana.', 1441584000123456, 1700000000784000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 148, NULL, 1, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 248'),
(346, 2, '950C3EAE-FB5F-4875-BAAF-E767516E303C', 'Entry 249', 'rain rain coat bread clock план план quince.', 1441670400123456, 1700000000786000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 149, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, 18, NULL, 55, 'entry 249'),
(347, 3, '45959ED0-B260-4A5D-AA81-685599534477', 'Entry 250', 'coat ladder tea tea tea Kitchen river mañana.', 1441756800123456, 1700000000788000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 150, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 250'),
(348, 4, '58125426-EAAE-4120-8DBE-9B78117EA7D3', 'Entry 251', 'river coat Übung Kitchen bread Kitchen.', 1441843200123456, 1700000000790000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 151, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 251'),
(349, 5, '2677E5EA-F1EB-48E1-93A8-CA908C236132', 'Entry 252', 'garden rain 東京 ladder 東京 çay.', 1441929600123456, 1700000000794000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 152, NULL, 0, 0, 1, 1, 1, 2, 0, NULL, NULL, 42, NULL, NULL, 'entry 252'),
(351, 2, 'FDD4A630-DF36-417D-8097-D4926FB253DA', 'Entry 253', 'план rain bread ladder letter mañana coat bread clock straße.', 1442016000123456, 1700000000796000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001285000, 0, NULL, 153, NULL, 0, 1, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 253'),
(352, 3, '139AB81D-A42D-416F-BF98-DBEF73535B80', 'Entry 254', 'Übung 서울 план план clock garden garden.', 1442102400123456, 1700000000800000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 154, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, 56, 'entry 254'),
(353, 4, 'D00C9AEE-9D73-4325-B09A-13A5D5B4BF18', 'Entry 255', 'ladder ladder Ærø rain.', 1442188800123456, 1700000000802000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001291000, 0, 0, NULL, 0, NULL, 155, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, 17, NULL, NULL, 'entry 255'),
(354, 5, '9F879EEC-DB62-4D1A-8B5B-B7E2B38D122D', 'Entry 256', 'river clock window window rain tea letter çay bread Kitchen.', 1442275200123456, 1700000000806000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 156, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 256'),
(355, 1, 'DA6DB0F1-5CD1-49CE-911A-87F1E3D8916E', 'Entry 257', 'ladder Ærø straße clock.', 1442361600123456, 1700000000808000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 157, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 257'),
(356, 2, '176D1358-EDF9-49A1-AF0D-EC19C1DE2D32', 'Entry 258', 'план ποίημα Kitchen rain garden ladder 東京 window çay window clock.', 1442448000123456, 1700000000810000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 158, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, 17, NULL, NULL, 'entry 258'),
(357, 3, 'ECF7248A-A2B2-4794-97DF-3C77A0FAAB44', 'Entry 259', 'letter window ποίημα.', 1442534400123456, 1700000000814000, 'Zoë’s "old" telephone 📱', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 159, NULL, 0, 0, 1, 1, 0, 0, 0, NULL, NULL, NULL, NULL, 57, NULL),
(358, 4, 'AA995F0A-1CB5-4E8C-93DB-6EA931A4647C', 'Entry 260', '서울 coat ladder mañana ποίημα bread tea Ærø mañana Ærø.', 1442620800123456, 1700000000818000, 'Zoë’s test machine', 1, 1, 1700000001295000, 0, 1700000001296000, 0, 0, NULL, 0, NULL, 160, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 260'),
(359, 5, '7F53AD08-D8B1-4039-AE71-47ADF1C1D4B4', 'Entry 261', 'tea ποίημα clock mañana window.', 1442707200123456, 1700000000820000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 161, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, 12, NULL, NULL, 'entry 261'),
(361, 2, '6C9A93E6-6489-407E-B605-ABD1EA6F71F1', 'Entry 262', NULL, 1442793600123456, 1700000000822000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 162, NULL, 0, 0, 0, 0, 0, 1, 1, 1700000000822000, '0CFF7451-F0D9-4187-9FA8-E3999BA46239', NULL, 1, NULL, 'entry 262'),
(362, 3, '65BDAE00-7129-4E2A-BEFE-171CE3A31061', 'Entry 263', 'window çay bread bread Kitchen rain.', 1442880000123456, 1700000000824000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 163, NULL, 0, 0, 0, 0, 0, 3, 0, NULL, NULL, NULL, NULL, NULL, 'entry 263'),
(363, 4, 'BC37FD42-0625-4FB9-BB48-AC0396A8B591', 'Entry 264', 'quince clock coat rain straße çay.', 1442966400123456, 1700000000826000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001297000, 0, NULL, 164, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 17, NULL, 58, 'entry 264'),
(364, 5, '8CFBE99F-F69C-430B-9722-6B8893EF8C43', 'Entry 265', 'naïve çay tea window çay çay çay ποίημα coat.', 1443052800123456, 1700000000830000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 165, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(365, 1, 'C7A0823C-D25E-46D7-9DA5-23E1E1DA84A2', 'Entry 266', 'ποίημα план план tea garden.', 1443139200123456, 1700000000834000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001298000, 166, NULL, 0, 0, 0, 1, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 266'),
(366, 2, '6FAC1DFC-3AD1-419D-832B-287B4FDA9043', 'Entry 267', 'Ærø Übung 東京 window clock.', 1443225600123456, 1700000000836000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 167, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 267'),
(367, 3, 'CD370E5F-B832-4D03-9C37-6B6F239364FB', 'Entry 268', 'letter ποίημα Übung quince mañana tea bread Ærø tea Übung Übung.', 1443312000123456, 1700000000838000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 168, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 268'),
(368, 4, '5F168050-89A0-47D8-91AA-FE48F0F457ED', 'Entry 269', 'quince Kitchen 서울 ladder Übung.', 1443398400123456, 1700000000840000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 169, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, 59, 'entry 269'),
(369, 5, '6C90E06B-3579-451E-9470-0B85725F26B3', 'Entry 270', '서울 rain letter.', 1443484800123456, 1700000000844000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 170, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, 19, NULL, NULL, 'entry 270'),
(371, 2, '6792EEC0-7631-4AE5-B2A6-BD664707966E', 'Entry 271', 'straße quince window Kitchen clock çay.', 1443571200123456, 1700000000848000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 171, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(372, 3, '8DFB94EA-B6D4-4260-84C6-7B1DDC5A816C', 'Entry 272', 'naïve ladder bread Übung 서울 bread.', 1443657600123456, 1700000000850000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001303000, 0, 0, NULL, 0, NULL, 172, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 272'),
(373, 4, 'DA12DE0C-E1B7-4E99-8984-60A4F28C3800', 'Entry 273', 'garden план river rain ladder.', 1443744000123456, 1700000000854000, 'Zoë’s test machine', 2, 1, 1700000001304000, 0, 1700000001305000, 0, 0, NULL, 0, NULL, 173, NULL, 0, 0, 0, 1, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 273'),
(374, 5, '92F4884E-2794-4C4F-89E1-1523C7FFF5BE', 'Entry 274', 'river ladder ποίημα letter ladder çay план bread ποίημα river ποίημα.', 1443830400123456, 1700000000858000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 174, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, 61, 'entry 274'),
(375, 1, '2417621E-DE1C-4E2E-A526-558D70C28D42', 'Entry 275', 'план straße ladder bread 東京.', 1443916800123456, 1700000000860000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001306000, 0, NULL, 175, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 275'),
(376, 2, 'C402FE7C-A250-40EA-84BC-628CDA8BDD81', 'Entry 276', 'letter quince Kitchen clock quince coat çay 서울 서울.', 1444003200123456, 1700000000864000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 176, NULL, 0, 1, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 276'),
(377, 3, 'AA68A09E-A5FD-4608-91EE-5C4DC0D98257', 'Entry 277', 'letter straße window clock çay tea bread quince naïve river.', 1444089600123456, 1700000000866000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 177, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 277'),
(378, 4, 'BEC3228A-FF22-40AB-A12B-8F54732C84F3', 'Entry 278', NULL, 1444176000123456, 1700000000868000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 178, NULL, 0, 0, 0, 0, 0, 2, 1, 1700000000868000, '352C2FC1-61D5-44D4-9728-4C045DDD9410', NULL, 1, NULL, NULL),
(379, 5, '2E253666-DC2D-4984-B2BD-DA4C6DA4C5D8', 'Entry 279', 'tea garden window window window план ποίημα coat letter window mañana.', 1444262400123456, 1700000000870000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 179, NULL, 1, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, 62, 'entry 279'),
(381, 2, 'D6DDD3A6-9586-402D-8CDD-3FBDC691B19C', 'Entry 280', 'naïve bread ladder Übung çay river.', 1444348800123456, 1700000000872000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 180, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 280'),
(382, 3, 'C3B8B49D-35D1-4EDA-8A6C-CD47A35FF312', 'Entry 281', '東京 bread quince çay clock ladder.', 1444435200123456, 1700000000874000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 181, NULL, 0, 0, 0, 0, 2, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 281'),
(383, 4, 'AC3535A7-7794-4C7D-BA52-5A13DFB90585', 'Entry 282', 'план 東京 ποίημα clock план.', 1444521600123456, 1700000000876000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 182, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 282'),
(384, 5, 'C6EE4261-483F-4247-8374-EE7DCE8E2AFC', 'Entry 283', 'Übung letter river bread river.', 1444608000123456, 1700000000878000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 183, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 283'),
(385, 1, '6E01D325-52FD-4C03-A8A3-877E6EE0C1DB', 'Entry 284', 'план window çay straße coat Übung.', 1444694400123456, 1700000000882000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 184, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, 63, NULL),
(386, 2, '6E435E9C-210E-4A32-9624-AF16EBEAE28F', 'Entry 285', '서울 rain mañana garden clock план 東京 ladder bread Kitchen.', 1444780800123456, 1700000000886000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001307000, 185, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 285'),
(387, 3, 'DA8546B2-2B60-4FB2-9C8A-13BF0D1DCF26', 'Entry 286', 'tea straße window tea mañana 東京 Übung bread garden Kitchen naïve.', 1444867200123456, 1700000000888000, 'Zoë’s test machine', 2, 1, 1700000001313000, 0, 1700000001314000, 0, 1, 1700000001308000, 0, NULL, 186, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 286'),
(388, 4, '24090AB8-D145-49A0-A51D-D9C82668274D', 'Entry 287', 'quince çay Übung tea ladder 서울 Ærø bread.', 1444953600123456, 1700000000890000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 187, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 287'),
(389, 5, 'AA4919F7-EA0F-4770-986B-E485D2813223', 'Entry 288', 'straße Kitchen window çay bread river tea naïve garden letter.', 1445040000123456, 1700000000892000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 188, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, 17, NULL, NULL, 'entry 288'),
(391, 2, 'FE640BF1-8A8A-4892-807D-C346A5CF656C', 'Entry 289', 'window garden ποίημα river letter mañana straße план.', 1445126400123456, 1700000000894000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001315000, 0, 0, NULL, 0, NULL, 189, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, 64, 'entry 289'),
(392, 3, 'B2E057D5-1AB8-4C18-9DBC-AA4CC1CABB1C', 'Entry 290', 'naïve garden clock çay план straße mañana river.', 1445212800123456, 1700000000896000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 190, NULL, 0, 0, 0, 0, 0, 3, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(393, 4, 'D46ED999-07ED-4B1D-8409-E96E7F17BF50', 'Entry 291', '東京 план window tea 서울 çay 東京 mañana naïve Kitchen letter.', 1445299200123456, 1700000000898000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 191, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 291'),
(394, 5, 'CFCE9453-1655-4419-A0FA-1F5670605509', 'Entry 292', '서울 coat tea 서울 river straße ladder.', 1445385600123456, 1700000000900000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 192, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 292'),
(395, 1, '83C8050C-C3DD-4357-818D-179D8E5C6F65', 'Entry 293', 'ποίημα 東京 rain Kitchen letter naïve bread.', 1445472000123456, 1700000000902000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 193, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 293'),
(396, 2, 'DF07ACA9-E3B7-4D1A-9921-53EAA5C4A125', 'Entry 294', NULL, 1445558400123456, 1700000000904000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 194, NULL, 0, 0, 0, 0, 0, 0, 1, 1700000000904000, 'E399F45F-DCB7-4128-A536-410CE63B6941', NULL, 1, 65, 'entry 294'),
(397, 3, '34860D6B-A364-494B-B879-A5706282F9EB', 'Entry 295', 'tea rain clock coat bread.', 1445644800123456, 1700000000908000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 195, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 295'),
(398, 4, '62BA2F98-7EFE-49B7-95BB-02D3194C0145', 'Entry 296', 'window Ærø river quince Übung ποίημα Kitchen Übung ladder river 서울.', 1445731200123456, 1700000000912000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 196, NULL, 0, 0, 0, 0, 1, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 296'),
(399, 5, '49C469D9-5B73-4BF5-8192-13C95EDB07B3', 'Entry 297', 'Kitchen coat ladder river Ærø ποίημα Ærø river план.', 1445817600123456, 1700000000914000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 1, 1700000001316000, 0, NULL, 197, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(401, 2, '9C8B954A-B954-49B4-AFDA-51E40490DD22', 'Entry 298', 'straße straße river план window window 東京 coat.', 1445904000123456, 1700000000916000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 198, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 298'),
(402, 3, '772FDFB0-8E33-4EAD-8D9B-6B389126C214', 'Entry 299', 'garden tea window 東京 東京 ποίημα.', 1445990400123456, 1700000000918000, 'Zoë’s test machine', 1, 1, 1700000001322000, 0, 1700000001323000, 0, 0, NULL, 0, NULL, 199, NULL, 0, 1, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, 66, 'entry 299'),
(403, 4, 'CFAB8C23-9C06-4D34-B402-AD38F2A8E2E0', 'Entry 300', 'ποίημα 서울 план quince план 東京 план.', 1446076800123456, 1700000000922000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 200, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 300'),
(404, 5, 'FDDAE569-1FBC-442B-A311-70383BFA32D9', 'Entry 301', 'mañana план tea coat straße ποίημα план tea 東京 ποίημα план.', 1446163200123456, 1700000000924000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 201, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 301'),
(405, 1, 'FC288B84-1AF4-4F81-9ED0-492AD1071499', 'Entry 302', 'clock naïve tea.', 1446249600123456, 1700000000926000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 202, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 302'),
(406, 2, '27ED1594-34D7-4541-8501-12F766C9AC83', 'Entry 303', 'letter 서울 quince Kitchen tea straße rain 東京 tea.', 1446336000123456, 1700000000928000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 203, NULL, 0, 0, 0, 0, 0, 2, 0, NULL, NULL, 19, NULL, NULL, NULL),
(407, 3, 'C0B8FDC6-CE5D-4F2A-9D3B-31558515437F', 'Entry 304', 'bread ποίημα clock план straße rain bread garden ladder garden ποίημα.', 1446422400123456, 1700000000930000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001324000, 204, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, 67, 'entry 304'),
(408, 4, 'C7DD37CC-012E-444E-9346-FB98A5421DA9', 'Entry 305', 'window bread river 서울.', 1446508800123456, 1700000000932000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 205, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 305'),
(409, 5, 'D6119D80-2FC1-4ABF-9E36-96D978A446A6', 'Entry 306', 'bread clock Kitchen rain naïve tea tea bread план.', 1446595200123456, 1700000000934000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001329000, 0, 0, NULL, 0, NULL, 206, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 18, NULL, NULL, 'entry 306'),
(411, 2, 'A129C51F-9DB7-408E-8B0D-C4B7C5E24BFF', 'Entry 307', 'bread clock letter ποίημα план tea.', 1446681600123456, 1700000000936000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 207, NULL, 0, 0, 0, 0, 3, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 307'),
(412, 3, '518B1018-5FA7-46F3-9629-9A1679747E33', 'Entry 308', 'Kitchen bread river 東京.', 1446768000123456, 1700000000940000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001330000, 0, NULL, 208, NULL, 0, 0, 0, 0, 1, 2, 0, NULL, NULL, NULL, NULL, NULL, 'entry 308'),
(413, 4, 'FBB589A3-7309-43E4-88E0-54817871AC59', 'Entry 309', 'river Übung clock clock.', 1446854400123456, 1700000000944000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 209, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, 17, NULL, 68, NULL),
(414, 5, 'E654A3E0-2930-4DD5-B649-4238D6E2F062', 'Entry 310', NULL, 1446940800123456, 1700000000946000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 210, NULL, 1, 0, 0, 0, 3, 0, 1, 1700000000946000, '963AEB6C-A613-4925-8B14-AABEDB1876EF', NULL, 1, NULL, 'entry 310'),
(415, 1, '5FBDFF2A-E9AD-4E5A-AF20-E6DB24AC1230', 'Entry 311', 'tea Ærø 東京 rain Übung quince Kitchen Ærø quince letter garden.', 1447027200123456, 1700000000948000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 211, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 311'),
(416, 2, '56C5735F-F51C-4ADC-B390-738914632D8D', 'Entry 312', 'garden quince naïve ladder bread coat mañana 서울 Kitchen garden.', 1447113600123456, 1700000000950000, 'Zoë’s test machine', 1, 1, 1700000001331000, 0, 1700000001332000, 0, 0, NULL, 0, NULL, 212, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 312'),
(417, 3, '25CD33AB-7600-4FEB-AA69-0464B611C907', 'Entry 313', 'garden ladder coat 東京 Übung Übung план Kitchen rain tea Ærø.', 1447200000123456, 1700000000954000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 213, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 313'),
(418, 4, 'EC18C804-5348-4ACA-8C92-086B9AF95F1A', 'Entry 314', 'tea rain Ærø window Kitchen mañana coat çay план bread naïve.', 1447286400123456, 1700000000956000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 214, NULL, 0, 0, 0, 0, 1, 0, 0, NULL, NULL, NULL, NULL, 69, 'entry 314'),
(419, 5, '88CE9CC7-6959-4838-93BD-B9C54E06101B', 'Entry 315', 'window Übung Ærø bread coat Übung garden.', 1447372800123456, 1700000000958000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 215, NULL, 0, 0, 0, 0, 2, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 315'),
(421, 2, '24B21FC6-8421-4B43-83FF-88E9B0F84098', 'Entry 316', 'çay ποίημα çay 서울 letter.', 1447459200123456, 1700000000960000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 216, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'entry 316'),
(422, 3, 'A98B62B8-F479-400B-9D32-81CE6A8D6AFB', 'Entry 317', 'план garden coat rain ladder clock clock.', 1447545600123456, 1700000000962000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 217, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, NULL, NULL, NULL, 'entry 317'),
(423, 4, 'A1C0A1D3-6FAB-486B-B037-03553E0EDA61', 'Entry 318', 'quince letter Übung rain straße.', 1447632000123456, 1700000000964000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 218, NULL, 0, 0, 0, 0, 0, 1, 0, NULL, NULL, 38, NULL, NULL, 'entry 318'),
(424, 5, '190B2263-0A9F-459F-BA95-26AE73790F5A', 'Entry 319', 'garden window quince garden bread window.', 1447718400123456, 1700000000966000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 1, 1700000001333000, 0, NULL, 219, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, 71, 'entry 319'),
(425, 1, '5478DE0F-6E29-4ACC-ADB5-D9FAF2A7DB4C', 'Groceries', 'milk and Groceries again', 1700000000967000, 1700000000969000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'groceries'),
(426, 2, 'C08BFD97-BFEA-402B-B6FE-E8FF28A7DD30', 'AC/DC', 'is a title with a slash', 1700000000970000, 1700000000971000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'ac/dc'),
(427, 3, '6E7B6940-3351-4E49-AB9C-424CA5922308', 'x|y [z]', 'is one to escape', 1700000000972000, 1700000000973000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(428, 4, '2A5827DB-A549-405E-901B-133D6CF9A975', 'Éclair', 'of other letters', 1700000000974000, 1700000000975000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'eclair'),
(429, 5, '9D5843A9-0C7D-4536-AB8D-93D94D3CF00A', '', '', 1700000000976000, 1700000000977000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(431, 2, 'CEA9DD77-7629-4F99-A5EF-8D0C116044CB', '', '', 1700000000978000, 1700000000979000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, ''),
(432, 3, '1CE536A9-9A60-43B8-993A-EB5A73543148', 'By identifier', '9D5843A9-0C7D-4536-AB8D-93D94D3CF00A and the empty one', 1700000000980000, 1700000000983000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'by identifier'),
(433, 4, '7DA93E5A-4243-4DAE-89C4-90B845154852', 'Links', '🎉 Groceries again !GROCERIES AC/DC x|y [z]', 1700000000984000, 1700000000995000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'links'),
(434, 5, 'F8FC836C-D857-489C-AEB9-228499FBDE0B', 'To Groceries', 'a link in a title', 1700000000996000, 1700000000998000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(435, 1, '9E36E0CF-8D0B-47B6-AFF6-AE5786D45CE5', 'Chain one', 'Chain two', 1700000000999000, 1700000001001000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'chain one'),
(436, 2, 'F00CA398-ECB9-4A92-96DB-FECC4A763A71', 'Chain two', 'Chain three Chain one', 1700000001002000, 1700000001005000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'chain two'),
(437, 3, '008BF51A-5800-46BB-810D-B01912D9296F', 'Twin', 'the first, in the trash', 1420070401123456, 1700000001007000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001008000, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'twin'),
(438, 4, '5A4617A5-67B5-40FA-AE2F-94BB613E8A50', 'twin', 'the third', 1420070700123456, 1700000001010000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'twin'),
(439, 5, '6E456591-F818-471C-B1B3-04FCCADEB020', 'TWIN', 'the second: links lead here', 1420070600123456, 1700000001012000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'twin'),
(441, 2, 'FF9ACD1A-3D89-42E3-B96F-70D77623A702', 'Twin', 'made at no known time, in the trash', 1420070405123456, 1700000001014000, 'Zoë’s test machine', 2, 0, NULL, 1, 1700000001015000, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, NULL),
(442, 3, 'FF786F04-EDAA-408B-A95A-6059DF97537B', 'Thrown away', 'and nothing took its place', 1420070410123456, 1700000001017000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001018000, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'thrown away'),
(443, 4, '85A12B1F-6AA2-4C3A-9B83-FC7C54BB7067', 'Same moment', 'of two the one with the lower key', 1420070420123456, 1700000001020000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'same moment'),
(444, 5, '255B431D-78EB-46DB-947E-EAE53762BB51', 'Same moment', 'of two the one with the higher key', 1420070420123456, 1700000001022000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'same moment'),
(445, 1, 'BCE3D3C3-1083-4B6B-81E0-589B4FBEF544', 'To twins', 'Twin thrown away Same moment Dateless', 1700000001023000, 1700000001028000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'to twins'),
(446, 2, 'BB0314D9-A99A-44AE-BD3C-D40D9B449A19', 'Dateless', 'what has no date was made first', NULL, 1700000001030000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'dateless'),
(447, 3, 'EF51F6A8-0125-4B6F-93F9-8C3437501CD1', 'Dateless', 'made later than none', 420070400123456, 1700000001032000, 'Zoë’s test machine', 2, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 0, 0, NULL, NULL, NULL, NULL, NULL, 'dateless');
INSERT INTO "OVNote_large" ("pk", "text", "encryptedData") VALUES
(1, '# It''s "quoted"

''''; DROP TABLE "OVNote"; --

#it''s# `''`', NULL),
(2, '# Back\slash \\ C:\new\table

\n \0 \'' %s %d {} {0} ?1 :name @name $name', NULL),
(3, CAST(X'23204E554C200020696E2061207469746C650A0A616E6420000020696E20612074657874' AS TEXT), NULL),
(4, CAST(X'00' AS TEXT), NULL),
(5, CAST(X'23204E554C200020616E64207468656E0A0A23626568696E642F6E756C205B5B47726F6365726965735D5D0A0A2D205B205D206D696C6B20000A0A6060600A636F646520000A6060600A' AS TEXT), NULL),
(6, CAST(X'2320436F6E74726F6C732001021B5B306D7F0A0A62656C6C20072C20666F726D2066656564200C2C20766572746963616C20746162200B' AS TEXT), NULL),
(7, CAST(X'23204C696E6520656E64730D0A0D0A6F6620616E6F746865722073797374656D0D0A2D205B205D206F6E650D0A2D205B785D2074776F0D0A2377696E646F77730D0A' AS TEXT), NULL),
(8, CAST(X'23204F6C64206C696E6520656E64730D0D6F6620612074686972640D2D205B205D206F6E65' AS TEXT), NULL),
(9, '﻿# A byte order mark

in front', NULL),
(11, '# Separators of lines and paragraphs', NULL),
(12, '# 🎉 Emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴

🧵 #🎉 #party/🥳 [[Groceries]]', NULL),
(13, '# שלום עולם

טקסט מימין לשמאל, ‏12‎ #עברית', NULL),
(14, '# مرحبا بالعالم

- [ ] الحليب ، الخبز
#عربي/يومي', NULL),
(15, '# Café and café

Z͑ͯ̓a̢̡l̵go̢ ȩ̣́ #café', NULL),
(16, '# Left over �� of halves

of pairs �', NULL),
(17, '# Astral 𝕏 𐍈 𠜎

𝟘𝟙𝟚 #𝔱𝔞𝔤', NULL),
(18, '# İstanbul ıspanak STRASSE ß ẞ ﬁ Ǆ

folded #İzmir #ıspanak', NULL),
(19, '# Zero​width‍ and blanks　of all kinds

­', NULL),
(21, '# 日本語の題名

本文です。#日本/料理

- [x] 買い物
- [ ] 掃除', NULL),
(22, '# 한국어

한글 조합형 한 #한국', NULL),
(23, '', NULL),
(24, ' ', NULL),
(25, '


', NULL),
(26, '#', NULL),
(27, '# ', NULL),
(28, '-', NULL),
(29, '---', NULL),
(31, CAST(X'09' AS TEXT), NULL),
(32, '[[', NULL),
(33, ']]', NULL),
(34, '#home', NULL),
(35, '#home #work

#ideas', NULL),
(36, '![]()', NULL),
(37, '<!-- nothing -->', NULL),
(38, '```', NULL),
(39, '# Fenced

```cpp
int main() { return ''\''''; }
```
', NULL),
(41, '# Fenced with tildes

~~~
[[Groceries]] #notag
~~~', NULL),
(42, '# Indented

    [[Groceries]]
', NULL),
(43, CAST(X'2320496E64656E7465642062792061207461620A0A09636F6465' AS TEXT), NULL),
(44, '# In a list

- item

      code of the item
', NULL),
(45, '# In a quote

>     code
', NULL),
(46, '# Spans only

`code` and ``two ` ticks`` and ```three``` in a line', NULL),
(47, '# A paragraph
    goes on
    indented', NULL),
(48, '# Deep list

- one
    - two
        - three
            - four', NULL),
(49, CAST(X'23205461627309696E096C696E65730A0A6109622020202063' AS TEXT), NULL),
(51, '# Shopping

- [ ] milk
- [x] bread
* [X] eggs
1. [ ] tea
- [] none
  - [ ] nested
> - [x] quoted', NULL),
(52, '- [ ] a to-do for a title
- [x] and another', NULL),
(53, '# Tags

#a/b/c #a/b #A/B/C #closed tag# (#in-parentheses) x#none \#none #home/kitchen, #ideas!', NULL),
(54, '#first line of tags

# The title below

#home/kitchen/shelf', NULL),
(55, '# Many levels

#1st/2nd/3rd/4th/5th/6th/7th/8th', NULL),
(56, 'Setext title
============

and text', NULL),
(57, '> # Quoted title
>
> - [ ] quoted', NULL),
(58, '# [A link](https://example.com/a%20b?c="d") and ![an image](missing.png)

<https://example.com> [r]

[r]: /x ''y''', NULL),
(59, '# *Emphasis* **strong** ~~gone~~ ==marked== `code` &amp; &copy; \*

<b>raw</b>', NULL),
(61, '| a | b |
|---|---|
| 1 | [[x\|y]] |', NULL),
(62, '1986\. A great year', NULL),
(63, '[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[x]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]', NULL),
(64, '>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>> deep', NULL),
(65, '# A long day

' || replace(hex(zeroblob(180000)), '00', 'It rained, and nobody minded. ') || '
', NULL),
(66, '# 🎉 A long feast

#party/🥳

' || replace(hex(zeroblob(240000)), '00', '- [ ] 🧁 for Zoë
') || '
and [[Groceries]], at last
', NULL),
(67, '# A long program

' || replace(hex(zeroblob(200000)), '00', 'it''s prose, no code
') || '
```
end
```
', NULL),
(68, '' || replace(hex(zeroblob(100000)), '00', ' ') || '', NULL),
(69, '# Entry 0

naïve план rain Kitchen Kitchen.
- [ ] Kitchen ποίημα quince çay Übung.
- [x] rain tea Ærø план 東京 window 서울.
- [ ] coat Übung Kitchen mañana naïve çay mañana bread rain Ærø window.

See [[Entry 152]] and [[entry 225|another one]].

![](picture%200%20%C3%A4.png) [paper](<paper''s "0".pdf>)', NULL),
(71, '# Entry 1

çay window çay ποίημα çay letter quince rain rain coat.

#ideas #two words#
', NULL),
(72, '# Entry 2

naïve garden 東京 garden straße 서울 tea coat 東京.

#日本/料理 #café
- [ ] ποίημα clock ladder window 서울 ποίημα straße straße 東京 letter coat.
- [x] river window Kitchen Übung clock straße rain clock tea.
- [ ] clock rain river window window letter план rain.
', NULL),
(73, '# Entry 3

rain rain bread план river 東京 river naïve bread Kitchen.

#reise/norge #reise/norge
- [ ] план bread clock rain 서울 tea план Kitchen план clock 서울.
- [ ] quince Ærø clock rain quince quince clock.

See [[Entry 35]] and [[entry 47|another one]].

    indented rain river Ærø.
', NULL),
(74, '# Entry 4

naïve 서울 letter ποίημα 東京 clock.
- [x] 서울 naïve clock quince 서울 window river tea rain ladder quince.

See [[Entry 299]] and [[entry 37|another one]].
', NULL),
(75, '# Entry 5

план quince ποίημα coat ποίημα garden mañana 서울 letter.
- [x] bread Übung garden 東京.
- [x] Übung quince quince Kitchen river Ærø window coat.
', NULL),
(76, NULL, X'6369706865722080FF206F66206E6F74652036'),
(77, '# Entry 7

naïve coat çay clock.
- [ ] 서울 çay 東京 rain ladder.
- [x] window naïve ladder clock Kitchen garden naïve straße ladder letter.

```
int answer = 42;
```

![](<picture 1 ä.png>) [paper](<paper''s "1".pdf>)', NULL),
(78, '# Entry 8

ladder clock letter.
- [ ] ποίημα Übung ποίημα straße bread.

    indented ladder quince bread quince çay 서울 rain.
', NULL),
(79, '# Entry 9

ladder план план quince.
- [ ] quince 서울 план ποίημα mañana coat ladder coat naïve ladder 東京.

See [[Entry 350]] and [[entry 93|another one]].

```
int answer = 42;
```
', NULL),
(81, '# Entry 10

window bread mañana mañana tea Ærø Übung çay.

#work/übung #home
- [ ] rain план Übung coat straße bread 서울 Kitchen coat 서울.
', NULL),
(82, '# Entry 11

letter window bread 서울 Ærø.

#reise/norge #日本/料理

```
int answer = 42;
```

    indented rain quince clock garden.
', NULL),
(83, '# Entry 12

garden letter window.

#ideas/later #two words#
- [ ] letter letter 東京.
- [ ] coat tea 서울 clock план Übung 서울.
', NULL),
(84, '# Entry 13

Kitchen river ποίημα 東京 Kitchen Ærø rain quince план river.

#café #work
- [ ] straße ποίημα garden quince rain straße rain 東京.
- [x] Übung tea letter 서울 clock 서울 straße clock 서울.
', NULL),
(85, '# Entry 14

서울 garden river ποίημα rain clock çay çay naïve garden river.

#日本/料理 #home/kitchen

![](picture%202%20%C3%A4.png)', NULL),
(86, '# Entry 15

tea naïve river coat.

#home #café
- [ ] Übung план tea river naïve tea naïve çay mañana straße straße.
- [x] tea план quince 東京 garden ποίημα quince Kitchen.

See [[Entry 145]] and [[entry 395|another one]].

```
int answer = 42;
```
', NULL),
(87, '# Entry 16

Übung 서울 план window clock Übung garden quince ποίημα.

#home/kitchen #home
- [ ] bread straße mañana rain bread ladder.
- [x] coat letter window 東京 rain.
- [ ] ποίημα naïve çay ladder Kitchen.
', NULL),
(88, '# Entry 17

서울 çay naïve quince Ærø tea clock naïve план.

#work/übung #home/kitchen/shelf
', NULL),
(89, '# Entry 18

Kitchen ποίημα çay tea bread 서울 straße window river naïve river.
', NULL),
(91, '# Entry 19

서울 letter river straße ποίημα ποίημα Ærø rain coat.

#café #日本/料理
- [ ] rain ποίημα garden ladder garden naïve naïve straße bread.
', NULL),
(92, '# Entry 20

clock quince bread Kitchen quince 서울 Kitchen mañana.

#home/kitchen/shelf #work/übung
- [x] mañana tea mañana river rain rain river.
- [ ] naïve clock straße.
- [x] river quince Übung straße mañana.

    indented quince mañana coat tea.
', NULL),
(93, '# Entry 21

서울 rain 東京 clock Übung.

#two words# #ideas
- [x] garden bread garden quince.
- [ ] rain straße Übung mañana quince 東京 window.

```
int answer = 42;
```

![](<picture 3 ä.png>)', NULL),
(94, NULL, X'6369706865722080FF206F66206E6F7465203232'),
(95, '# Entry 23

ladder mañana clock coat Übung straße Ærø çay çay garden.

#home/kitchen/shelf #home/kitchen/shelf
- [ ] window garden rain Kitchen.
- [x] план river план quince Kitchen clock план 서울.

See [[Entry 239]] and [[entry 180|another one]].
', NULL),
(96, '# Entry 24

naïve coat garden 東京 ποίημα Übung Kitchen quince coat.

#work/übung #ideas
- [x] clock 서울 rain rain tea ποίημα garden.
- [x] Kitchen naïve quince Ærø river ποίημα clock.
- [x] rain rain river quince Kitchen letter ladder river coat.
', NULL),
(97, '# Entry 25

coat 서울 garden çay bread tea bread clock план quince river.

#work #two words#
', NULL),
(98, '# Entry 26

naïve quince coat quince план coat straße.

#work #ideas
- [ ] Übung straße window ladder coat tea garden coat naïve.
- [ ] rain naïve window window straße 서울 quince rain bread.
- [x] план Übung Übung clock quince çay mañana naïve.
', NULL),
(99, '# Entry 27

東京 東京 clock letter çay Übung çay tea çay.
- [ ] Kitchen quince tea 東京 garden.
- [x] mañana 東京 garden tea rain clock Übung Übung letter window.
- [ ] window план Ærø.
', NULL),
(101, '# Entry 28

quince ladder clock Ærø.

#home #work/übung

See [[Entry 97]] and [[entry 221|another one]].

```
int answer = 42;
```

![](picture%204%20%C3%A4.png) [paper](<paper''s "4".pdf>)', NULL),
(102, '# Entry 29

straße naïve naïve window план Ærø straße quince bread bread.

#reise/norge #home/kitchen/shelf
- [x] river quince bread ποίημα rain tea çay Kitchen straße coat river.
', NULL),
(103, '# Entry 30

ladder mañana Ærø rain naïve Ærø mañana ladder Ærø ποίημα river.

#home/kitchen #home/kitchen/shelf
', NULL),
(104, '# Entry 31

ποίημα mañana 東京 Ærø rain tea rain letter mañana.
- [x] Kitchen 東京 Ærø.
- [x] план ladder Übung tea tea 서울 rain.

See [[Entry 206]] and [[entry 79|another one]].
', NULL),
(105, '# Entry 32

Kitchen quince bread 서울 window ποίημα Kitchen rain Kitchen.
- [x] river ποίημα Ærø 東京 tea river tea.
', NULL),
(106, '# Entry 33

coat quince Übung quince clock coat rain 서울.

#日本/料理 #home/kitchen/shelf
- [ ] Übung ποίημα Ærø naïve coat ποίημα.
- [x] çay ποίημα letter план garden.
- [ ] 東京 план coat window 서울.

    indented Übung çay ladder.
', NULL),
(107, '# Entry 34

план Ærø straße tea quince window river Ærø letter tea ποίημα.

#ideas #café
- [ ] letter план çay план.
- [ ] letter river mañana çay straße.

See [[Entry 341]] and [[entry 333|another one]].

```
int answer = 42;
```
', NULL),
(108, '# Entry 35

Kitchen river straße quince rain ποίημα Ærø bread.

![](<picture 5 ä.png>) [paper](<paper''s "5".pdf>)', NULL),
(109, '# Entry 36

garden straße straße Ærø letter tea.

#ideas #reise/norge
- [ ] ποίημα Ærø straße.
', NULL),
(111, '# Entry 37

Übung çay 서울.

#ideas #two words#
- [x] quince план window ποίημα straße rain river.
- [ ] 서울 ladder 서울 naïve quince window tea план план Kitchen Kitchen.
', NULL),
(112, NULL, X'6369706865722080FF206F66206E6F7465203338'),
(113, '# Entry 39

bread tea straße clock straße ladder rain 東京 window clock 東京.

#ideas #work/übung
- [ ] 東京 план Ærø.
', NULL),
(114, '# Entry 40

план çay window mañana quince quince.

#two words# #ideas/later
', NULL),
(115, '# Entry 41

coat quince window coat ποίημα straße naïve 東京.

#ideas #home
', NULL),
(116, '# Entry 42

tea straße ladder garden clock bread Ærø.
- [ ] ladder garden tea window план straße 서울 river coat.
- [ ] 서울 Kitchen Ærø план naïve.

See [[Entry 28]] and [[entry 315|another one]].

![](picture%206%20%C3%A4.png)', NULL),
(117, '# Entry 43

letter rain coat letter ladder.

#work/übung #work/übung
- [ ] Kitchen quince ποίημα bread.
', NULL),
(118, '# Entry 44

Kitchen rain ποίημα.

#work/übung #reise/norge
- [ ] garden garden river rain straße garden 서울 quince river Kitchen.
- [x] Übung Übung 서울 letter 東京 mañana.
- [ ] mañana 東京 straße план quince.
', NULL),
(119, '# Entry 45

план rain 서울 letter.

#home #home
- [x] letter 東京 rain rain garden coat quince.
- [x] rain Übung river Kitchen Kitchen mañana bread garden.
- [ ] mañana mañana garden coat letter Übung.
', NULL),
(121, '# Entry 46

naïve rain Ærø tea план letter quince.

#café #Work/Übung
- [ ] clock план window river clock mañana.
', NULL),
(122, '# Entry 47

서울 Kitchen 東京 rain quince çay Ærø ladder план straße.

#Work/Übung #ideas/later
', NULL),
(123, '# Entry 48

coat garden coat ποίημα quince ladder bread garden tea.
- [ ] window план ladder mañana bread straße naïve.
- [ ] план план ποίημα tea rain mañana garden Übung rain çay quince.
- [x] river mañana ποίημα bread river naïve tea.

See [[Entry 281]] and [[entry 265|another one]].
', NULL),
(124, '# Entry 49

window rain quince 東京 rain ladder.

#home/kitchen/shelf #reise/norge
- [ ] tea tea ποίημα.

![](<picture 7 ä.png>)', NULL),
(125, '# Entry 50

straße план rain letter naïve coat.

#ideas #home/kitchen
- [ ] naïve bread bread clock.
- [x] window clock window план çay garden rain 서울 straße.
- [ ] 東京 mañana rain ποίημα naïve bread coat çay.
', NULL),
(126, '# Entry 51

bread naïve план window.

#ideas #home/kitchen/shelf
- [x] ποίημα Übung tea çay Kitchen window.
', NULL),
(127, '# Entry 52

東京 straße letter ladder Ærø river 서울 ποίημα.

#日本/料理 #Work/Übung
- [ ] ποίημα naïve clock Übung план clock.
', NULL),
(128, '# Entry 53

naïve coat Übung letter ladder clock garden quince.

#work/übung #日本/料理
- [x] tea 東京 quince rain.
- [x] window river coat tea mañana river.
', NULL),
(129, NULL, X'6369706865722080FF206F66206E6F7465203534'),
(131, '# Entry 55

Ærø window план tea.
- [ ] çay 서울 Ærø.
', NULL),
(132, '# Entry 56

서울 ladder clock ladder letter rain ποίημα quince.
- [ ] mañana quince quince bread straße Ærø.
- [ ] tea straße river coat naïve bread Kitchen Übung.

![](picture%208%20%C3%A4.png) [paper](<paper''s "8".pdf>)', NULL),
(133, '# Entry 57

çay ladder ποίημα garden straße çay Ærø coat naïve coat.
- [x] Übung window river clock çay naïve window bread ladder river.

    indented mañana 東京 straße river river river letter ποίημα Ærø tea.
', NULL),
(134, '# Entry 58

東京 Übung coat letter bread straße 서울.

#Work/Übung #home/kitchen/shelf
', NULL),
(135, '# Entry 59

Übung river window garden coat.

#home #日本/料理
- [x] план 東京 서울 rain bread.
- [ ] river Ærø clock Ærø quince çay letter.
- [ ] window garden quince quince letter ποίημα.
', NULL),
(136, '# Entry 60

Ærø coat window garden quince letter coat 東京.

#two words# #日本/料理
- [ ] clock Übung window Kitchen.

See [[Entry 252]] and [[entry 127|another one]].
', NULL),
(137, '# Entry 61

Übung ποίημα 東京 東京 rain.
', NULL),
(138, '# Entry 62

tea ladder ladder bread 東京 quince.

#work #reise/norge
', NULL),
(139, '# Entry 63

garden ποίημα Ærø coat.

![](<picture 9 ä.png>) [paper](<paper''s "9".pdf>)', NULL),
(141, '# Entry 64

Übung ποίημα 東京 coat ladder план çay naïve window ladder coat.

#ideas/later #home
- [ ] clock coat 東京 rain ποίημα letter clock mañana clock bread.
- [ ] 서울 çay clock 서울 Übung Übung river window ποίημα.
- [ ] Übung mañana Kitchen rain window letter Kitchen window Übung ladder rain.

```
int answer = 42;
```
', NULL),
(142, '# Entry 65

bread clock coat план river coat ladder coat.

#home #home/kitchen/shelf
- [x] ladder bread план Ærø quince mañana letter garden.
- [ ] Übung clock river straße mañana window garden tea Ærø.
- [x] Kitchen window river mañana план.
', NULL),
(143, '# Entry 66

ποίημα window coat 서울 garden.

#Work/Übung #home/kitchen/shelf
- [x] window 東京 ποίημα garden bread Kitchen.
- [x] garden 東京 quince rain tea mañana Übung Ærø letter quince.
- [x] ποίημα river letter çay clock план rain coat.
', NULL),
(144, '# Entry 67

Ærø rain straße.

#two words# #Work/Übung
- [ ] tea bread quince clock Kitchen ποίημα çay mañana 서울.
- [ ] çay garden mañana Übung.
', NULL),
(145, '# Entry 68

ποίημα çay clock 서울 clock river garden mañana.
- [x] ladder straße ladder план план.
', NULL),
(146, '# Entry 69

план mañana tea garden.

#reise/norge #reise/norge
- [x] naïve coat bread çay garden.

```
int answer = 42;
```
', NULL),
(147, NULL, X'6369706865722080FF206F66206E6F7465203730'),
(148, '# Entry 71

window Kitchen ladder 東京.
- [x] 서울 Ærø garden river clock ladder river ladder garden quince clock.

```
int answer = 42;
```
', NULL),
(149, '# Entry 72

letter Kitchen Kitchen 東京 bread garden çay window ladder naïve.

#home/kitchen #Work/Übung
- [ ] clock quince coat quince Kitchen window ποίημα план Ærø 서울.
- [ ] rain Übung letter.

```
int answer = 42;
```
', NULL),
(151, '# Entry 73

river bread Übung tea rain 서울 garden rain mañana naïve.
- [ ] naïve river quince clock план tea.
- [x] coat quince river letter Kitchen mañana bread window window.
', NULL),
(152, '# Entry 74

tea Übung bread river.

#home/kitchen #home/kitchen/shelf
- [x] 서울 план window план 東京 clock window.
- [ ] window letter Ærø çay план Übung garden.
- [x] mañana tea river 東京 straße çay.

See [[Entry 278]] and [[entry 308|another one]].
', NULL),
(153, '# Entry 75

東京 clock naïve Übung.

#work/übung #work/übung
- [x] coat 東京 quince bread river garden mañana ποίημα garden.
- [x] ladder 서울 tea 東京 tea coat tea çay letter rain.
- [ ] rain naïve letter çay clock Kitchen.
', NULL),
(154, '# Entry 76

tea river tea bread window naïve.

#ideas/later #日本/料理
- [ ] rain Kitchen ladder tea Ærø rain garden rain.
- [x] ladder tea tea window letter quince river river ποίημα план.

See [[Entry 64]] and [[entry 112|another one]].

    indented naïve rain mañana coat Kitchen 東京 quince.
', NULL),
(155, '# Entry 77

Kitchen Kitchen mañana straße clock river bread rain naïve mañana.
- [ ] window план 東京 garden ladder letter tea 서울.
- [x] tea coat Ærø mañana çay 東京 çay ποίημα 서울.
- [x] garden Ærø naïve straße Kitchen tea coat Übung letter.

![](<picture 11 ä.png>)', NULL),
(156, '# Entry 78

bread çay quince ladder Kitchen план.

#work #reise/norge
- [ ] план coat mañana clock ladder letter river.
- [ ] straße naïve 서울 quince tea river naïve çay.
', NULL),
(157, '# Entry 79

rain garden Übung window mañana 서울.

#café #work/übung
- [x] clock mañana river straße river window bread tea Ærø garden naïve.
- [x] straße ladder quince ποίημα план letter 東京 naïve 서울 letter.
', NULL),
(158, '# Entry 80

mañana çay Kitchen план.
- [x] tea quince straße bread Übung çay garden quince çay.
', NULL),
(159, '# Entry 81

straße tea letter bread garden coat window.
- [ ] tea Kitchen river bread ladder clock 東京 rain 東京 window 서울.
', NULL),
(161, '# Entry 82

coat Kitchen coat rain.

#home/kitchen #café
', NULL),
(162, '# Entry 83

Ærø coat straße bread Übung план river naïve garden.
- [x] çay letter clock clock bread.
', NULL),
(163, '# Entry 84

quince 東京 Kitchen план Übung clock.
- [ ] план naïve letter coat план 東京 letter clock ladder.
- [ ] rain window Übung.
- [x] Kitchen Übung çay Übung ladder Ærø план straße river план план.

See [[Entry 123]] and [[entry 212|another one]].

![](picture%2012%20%C3%A4.png) [paper](<paper''s "12".pdf>)', NULL),
(164, '# Entry 85

Übung river ποίημα çay ladder window letter Kitchen.

#日本/料理 #ideas/later
- [ ] river river clock window coat straße 東京 tea.
- [x] 서울 çay straße план.
- [x] naïve rain letter window rain bread bread.

```
int answer = 42;
```

    indented coat ποίημα window straße clock 서울 coat Kitchen.
', NULL),
(165, NULL, X'6369706865722080FF206F66206E6F7465203836'),
(166, '# Entry 87

ladder Kitchen план ladder Übung 東京.
- [x] coat letter garden quince letter ladder naïve Kitchen tea.
- [ ] window window Kitchen quince план.
- [ ] план Kitchen quince план window ποίημα straße.
', NULL),
(167, '# Entry 88

план river план tea mañana 東京.
- [x] straße quince Ærø clock Übung bread Übung.
- [ ] river garden tea.
- [x] tea план garden план 東京 coat straße coat.

See [[Entry 346]] and [[entry 379|another one]].
', NULL),
(168, '# Entry 89

bread Übung straße window letter coat 서울 letter naïve.
- [ ] letter naïve Kitchen letter.
- [x] letter Kitchen 서울 mañana çay план window ποίημα 서울 ladder.
- [ ] rain mañana naïve quince letter straße.
', NULL),
(169, '# Entry 90

ladder bread window straße clock Ærø coat coat river ποίημα.

#work #home
', NULL),
(171, '# Entry 91

window naïve coat naïve Übung Kitchen bread bread letter ladder 東京.

#home #café
- [ ] ladder straße window.

```
int answer = 42;
```

![](<picture 13 ä.png>) [paper](<paper''s "13".pdf>)', NULL),
(172, '# Entry 92

ποίημα clock ladder naïve план clock Ærø quince.

#home/kitchen #ideas
- [x] Kitchen ποίημα window план.
- [ ] tea clock 東京 river.
', NULL),
(173, '# Entry 93

東京 garden çay garden çay rain 서울 garden.

#Work/Übung #ideas
- [x] garden river ποίημα garden naïve tea garden.
- [x] window mañana bread 서울 план naïve river bread.
- [ ] bread straße Kitchen garden naïve garden 서울 garden.
', NULL),
(174, '# Entry 94

서울 straße quince letter ladder 東京 coat garden çay.
- [x] 서울 bread план çay tea.
- [ ] çay Übung Übung ποίημα Übung çay 東京 naïve ποίημα çay.

See [[Entry 343]] and [[entry 230|another one]].
', NULL),
(175, '# Entry 95

bread Ærø coat Ærø mañana ladder garden rain tea naïve.
- [ ] quince quince çay çay clock bread quince naïve river garden.

See [[Entry 178]] and [[entry 297|another one]].
', NULL),
(176, '# Entry 96

tea ποίημα 東京 rain bread.

#home/kitchen/shelf #reise/norge
- [ ] Kitchen quince naïve Übung tea Übung straße ladder clock Übung 東京.
', NULL),
(177, '# Entry 97

Kitchen çay çay çay rain 서울.
- [ ] straße quince tea Kitchen план naïve.
', NULL),
(178, '# Entry 98

garden rain 東京 Übung 東京 garden Kitchen 東京 bread.

![](picture%2014%20%C3%A4.png)', NULL),
(179, '# Entry 99

coat Kitchen план river tea rain 東京.

#home #home

See [[Entry 11]] and [[entry 115|another one]].
', NULL),
(181, '# Entry 100

bread garden план Kitchen letter coat Übung clock ladder river çay.
- [ ] mañana river coat Kitchen Kitchen bread 東京 Ærø naïve coat.
- [ ] 서울 garden window coat Ærø ποίημα letter ladder naïve letter.
', NULL),
(182, '# Entry 101

window 東京 clock garden.

#café #reise/norge
- [x] river coat Ærø clock straße ποίημα tea river garden 서울 bread.
- [x] çay ladder river çay Kitchen bread.
', NULL),
(183, NULL, X'6369706865722080FF206F66206E6F746520313032'),
(184, '# Entry 103

çay bread mañana ποίημα naïve clock letter clock mañana window coat.
- [ ] river garden çay.
- [ ] план 서울 naïve quince mañana coat.
- [x] ladder garden 東京 çay план план 서울.

See [[Entry 213]] and [[entry 293|another one]].
', NULL),
(185, '# Entry 104

Kitchen quince 東京 garden 서울.
- [x] ladder Kitchen 東京 çay Ærø rain.
- [x] window bread 서울.
', NULL),
(186, '# Entry 105

rain naïve quince tea çay tea rain.

#café #reise/norge

See [[Entry 194]] and [[entry 183|another one]].

![](<picture 15 ä.png>)', NULL),
(187, '# Entry 106

ladder mañana Kitchen tea coat çay letter clock clock.

#café #home
', NULL),
(188, '# Entry 107

Ærø Ærø quince bread Übung.

#ideas/later #ideas
- [ ] straße ποίημα 서울 naïve ποίημα naïve straße clock Ærø quince mañana.
- [ ] clock naïve bread план.
', NULL),
(189, '# Entry 108

naïve ladder naïve garden Kitchen straße window coat ladder clock.

#日本/料理 #home/kitchen

See [[Entry 192]] and [[entry 41|another one]].
', NULL),
(191, '# Entry 109

letter Kitchen naïve çay план straße naïve.

#ideas/later #café
- [ ] mañana Ærø coat garden mañana rain naïve coat.
- [x] ποίημα clock clock mañana Ærø coat Kitchen.
- [x] garden ladder coat çay letter план garden.
', NULL),
(192, '# Entry 110

straße ladder Übung garden river coat.
- [x] coat window ποίημα.
', NULL),
(193, '# Entry 111

letter bread Kitchen garden rain 東京 tea garden çay naïve.

#work/übung #ideas
', NULL),
(194, '# Entry 112

план naïve mañana coat letter 東京 quince.

#reise/norge #日本/料理
- [ ] clock quince straße window ποίημα Ærø.
- [ ] letter mañana tea naïve.
- [ ] river mañana rain river coat clock Ærø.

![](picture%2016%20%C3%A4.png) [paper](<paper''s "16".pdf>)', NULL),
(195, '# Entry 113

план bread quince river çay.
- [x] tea 東京 tea letter mañana.
- [ ] çay çay quince.
- [ ] ποίημα Ærø ποίημα план straße garden.
', NULL),
(196, '# Entry 114

ποίημα letter 서울 naïve window mañana.
- [ ] rain çay mañana план rain план bread 서울 Kitchen 東京 Ærø.
- [x] Ærø 서울 letter letter 東京 clock.

See [[Entry 76]] and [[entry 165|another one]].
', NULL),
(197, '# Entry 115

coat 東京 garden window tea Ærø naïve.

#home/kitchen #work

See [[Entry 166]] and [[entry 24|another one]].
', NULL),
(198, '# Entry 116

straße план river clock 서울 Ærø straße river window çay tea.
- [x] river rain window 東京 straße quince.
- [x] 서울 서울 rain letter rain.
', NULL),
(199, '# Entry 117

letter river ποίημα coat clock clock 東京 ποίημα Ærø.

#two words# #Work/Übung

See [[Entry 317]] and [[entry 232|another one]].
', NULL),
(201, NULL, X'6369706865722080FF206F66206E6F746520313138'),
(202, '# Entry 119

çay letter quince clock tea naïve garden 서울 mañana clock план.

#café #home/kitchen/shelf

See [[Entry 156]] and [[entry 232|another one]].

    indented Übung garden rain.

![](<picture 17 ä.png>) [paper](<paper''s "17".pdf>)', NULL),
(203, '# Entry 120

서울 window Ærø ladder rain letter bread 東京 ladder.

#ideas #home
- [ ] clock river letter Ærø letter.
- [x] план letter clock Kitchen rain Übung straße garden.
- [ ] Übung coat window clock.
', NULL),
(204, '# Entry 121

coat naïve tea.

#home #日本/料理
- [x] river tea letter.
- [x] rain ladder ποίημα window ποίημα Kitchen план window tea.

See [[Entry 46]] and [[entry 168|another one]].
', NULL),
(205, '# Entry 122

garden çay Übung naïve çay Übung план план garden.
- [ ] план 서울 서울 bread quince naïve ladder çay ποίημα straße.
- [ ] ladder Ærø clock tea mañana план clock river quince план rain.

```
int answer = 42;
```
', NULL),
(206, '# Entry 123

mañana ladder план straße.
', NULL),
(207, '# Entry 124

Kitchen rain Übung garden window.

#ideas/later #café
- [ ] ladder river coat straße clock mañana letter 서울 Kitchen 서울 tea.
- [ ] ladder naïve mañana ποίημα ποίημα quince.
- [ ] Kitchen ladder letter.

See [[Entry 338]] and [[entry 224|another one]].
', NULL),
(208, '# Entry 125

window river ladder план naïve mañana quince Ærø.
- [x] rain ladder çay window.

```
int answer = 42;
```

    indented naïve 東京 çay.
', NULL),
(209, '# Entry 126

Kitchen tea ladder план naïve mañana letter bread garden план straße.
- [ ] garden 서울 mañana bread.
- [x] Ærø 서울 Ærø.
- [x] rain ladder Kitchen Kitchen letter window план çay çay.

See [[Entry 105]] and [[entry 381|another one]].

![](picture%2018%20%C3%A4.png)', NULL),
(211, '# Entry 127

çay Übung quince ποίημα rain letter mañana çay garden.

#日本/料理 #home
- [ ] Übung 서울 quince river straße 東京 Kitchen.
- [ ] rain quince çay naïve çay naïve rain window ποίημα çay river.
- [x] mañana straße rain garden Übung tea 東京.

See [[Entry 63]] and [[entry 307|another one]].
', NULL),
(212, '# Entry 128

çay план river.

#home #work/übung

See [[Entry 287]] and [[entry 67|another one]].
', NULL),
(213, '# Entry 129

garden çay çay çay ladder tea naïve straße river план.

#home/kitchen/shelf #reise/norge
- [ ] план ladder quince naïve 서울 quince river quince naïve coat.
- [x] ποίημα coat coat.

See [[Entry 212]] and [[entry 183|another one]].

    indented Kitchen ποίημα clock план 서울 naïve.
', NULL),
(214, '# Entry 130

çay bread ladder straße mañana Kitchen bread.

#two words# #ideas
- [x] Übung bread naïve Kitchen clock Ærø garden window.

See [[Entry 165]] and [[entry 74|another one]].
', NULL),
(215, '# Entry 131

Ærø garden coat tea 東京 서울 Kitchen çay naïve план.

#home/kitchen #home/kitchen/shelf
', NULL),
(216, '# Entry 132

ποίημα çay bread quince letter.

#Work/Übung #ideas/later
- [ ] window ladder Ærø quince.
- [ ] Übung 서울 mañana bread Übung river river rain coat straße.
- [x] Ærø Übung ladder mañana 서울 bread straße mañana ladder.

```
int answer = 42;
```
', NULL),
(217, '# Entry 133

quince tea window.

#café #work/übung
- [x] Übung garden ladder.
- [x] rain coat ποίημα mañana rain mañana straße straße çay quince clock.

See [[Entry 33]] and [[entry 142|another one]].

![](<picture 19 ä.png>)', NULL),
(218, NULL, X'6369706865722080FF206F66206E6F746520313334'),
(219, '# Entry 135

ποίημα çay ladder Ærø.

#日本/料理 #ideas/later
- [x] river 서울 window bread quince Kitchen tea mañana clock letter garden.

```
int answer = 42;
```

    indented coat letter çay naïve 서울 tea.
', NULL),
(221, '# Entry 136

план straße Kitchen.

#Work/Übung #ideas/later
- [x] mañana 東京 план Ærø mañana.
- [ ] naïve tea Übung clock Ærø garden Ærø план garden tea.
', NULL),
(222, '# Entry 137

bread naïve letter mañana Übung tea.

#ideas #home/kitchen/shelf

    indented 東京 tea straße straße план quince.
', NULL),
(223, '# Entry 138

ladder letter straße bread quince.

#two words# #work
- [x] Übung 東京 Kitchen.
- [x] 東京 ποίημα river план naïve garden Übung çay tea.
', NULL),
(224, '# Entry 139

tea ποίημα mañana coat 東京 mañana.

#café #home/kitchen/shelf
- [ ] straße rain Kitchen.

See [[Entry 14]] and [[entry 53|another one]].
', NULL),
(225, '# Entry 140

garden 東京 river bread rain coat straße quince.

#work #home/kitchen

    indented quince Kitchen ποίημα 東京 garden naïve naïve 東京 ποίημα letter.

![](picture%2020%20%C3%A4.png) [paper](<paper''s "20".pdf>)', NULL),
(226, '# Entry 141

straße Ærø quince straße naïve coat mañana 서울.
- [x] clock garden river coat mañana river çay tea letter river.
', NULL),
(227, '# Entry 142

straße coat clock ladder mañana.

#home/kitchen/shelf #two words#
', NULL),
(228, '# Entry 143

letter clock tea Ærø.

    indented naïve letter rain quince bread Übung план план çay.
', NULL),
(229, '# Entry 144

straße çay rain bread.

#work/übung #two words#
- [ ] garden Ærø clock.
- [ ] rain Kitchen mañana.
- [ ] çay mañana ladder bread window.
', NULL),
(231, '# Entry 145

quince ποίημα river Ærø straße Ærø clock план window 東京 Übung.

See [[Entry 308]] and [[entry 104|another one]].
', NULL),
(232, '# Entry 146

clock Ærø 東京 東京 план ladder Übung tea 서울 çay план.

#Work/Übung #ideas/later
- [x] ladder naïve river 서울 rain.
', NULL),
(233, '# Entry 147

Kitchen Übung Übung план river Übung rain mañana naïve Übung Übung.

#home/kitchen/shelf #work/übung
- [ ] river 東京 ladder quince straße bread Kitchen.
- [x] clock clock naïve bread.

![](<picture 21 ä.png>) [paper](<paper''s "21".pdf>)', NULL),
(234, '# Entry 148

letter straße ladder.

#work #home/kitchen
- [ ] coat river clock Ærø 서울 çay ladder straße clock rain çay.
- [x] coat Kitchen naïve.
- [ ] Kitchen quince window.

See [[Entry 5]] and [[entry 334|another one]].
', NULL),
(235, '# Entry 149

tea river quince.
- [x] 東京 ladder tea garden window rain naïve Ærø.
- [x] letter Kitchen 東京.
- [x] 서울 clock naïve ποίημα.
', NULL),
(236, NULL, X'6369706865722080FF206F66206E6F746520313530'),
(237, '# Entry 151

서울 window Kitchen.

#café #home
- [x] coat 서울 naïve rain çay 東京 bread tea Kitchen.
- [ ] Übung ποίημα coat quince mañana naïve tea clock.
- [ ] quince bread çay window ποίημα Übung.

```
int answer = 42;
```
', NULL),
(238, '# Entry 152

window Ærø window tea river Kitchen план clock.

#two words# #ideas/later
- [x] garden Ærø çay.
- [ ] 서울 naïve çay çay Kitchen mañana rain 서울.
- [ ] план 東京 letter.
', NULL),
(239, '# Entry 153

서울 ladder 東京 東京 Ærø clock 東京 ladder ποίημα quince план.
- [x] план Kitchen bread quince Kitchen mañana naïve çay rain rain.
- [x] bread Übung rain Übung naïve 서울 Kitchen.
', NULL),
(241, '# Entry 154

straße çay Übung 東京 план rain 서울.

![](picture%2022%20%C3%A4.png)', NULL),
(242, '# Entry 155

quince план window.

#home/kitchen/shelf #日本/料理
- [x] план Kitchen ladder window straße план naïve.
', NULL),
(243, '# Entry 156

mañana bread Übung letter window bread Übung quince naïve quince çay.
- [ ] tea Ærø quince letter rain naïve coat clock çay.

See [[Entry 117]] and [[entry 372|another one]].
', NULL),
(244, '# Entry 157

東京 tea bread Übung.
- [x] Ærø naïve ladder coat naïve 東京 garden план garden план rain.
- [ ] window window mañana letter.
- [x] garden план 東京 Kitchen bread clock clock Kitchen Kitchen.

    indented naïve ποίημα coat Ærø letter çay Übung Übung 서울 coat.
', NULL),
(245, '# Entry 158

서울 mañana Kitchen straße garden rain çay.
- [x] mañana ladder quince.
- [x] bread quince naïve straße çay çay.
- [ ] coat bread Ærø Ærø rain bread garden.
', NULL),
(246, '# Entry 159

план Ærø 東京 clock план garden window garden quince.

#café #work/übung
- [ ] straße garden 서울 Ærø Ærø 서울 garden.
- [ ] mañana straße clock window naïve.
', NULL),
(247, '# Entry 160

tea river 東京 서울.
- [x] çay tea tea.

    indented rain clock Übung mañana coat window.
', NULL),
(248, '# Entry 161

straße garden tea.
- [x] rain ποίημα 서울 Kitchen 서울 rain river clock.

![](<picture 23 ä.png>)', NULL),
(249, '# Entry 162

東京 tea letter coat window 서울 Ærø clock.

#two words# #日本/料理
', NULL),
(251, '# Entry 163

straße naïve ladder.
- [ ] mañana quince coat Ærø 서울.
- [ ] rain straße 東京 Ærø garden.
', NULL),
(252, '# Entry 164

garden straße Übung window.

#work/übung #home/kitchen/shelf
', NULL),
(253, '# Entry 165

clock çay garden bread naïve план coat Ærø Ærø ladder.

#café #home
- [x] çay 東京 東京 ποίημα tea river.
- [x] garden window rain Übung bread mañana straße letter Kitchen.

```
int answer = 42;
```
', NULL),
(254, NULL, X'6369706865722080FF206F66206E6F746520313636'),
(255, '# Entry 167

çay rain river Übung window letter.
- [x] план clock bread çay mañana.
- [ ] ποίημα 東京 coat garden 서울 coat 서울 letter naïve.
', NULL),
(256, '# Entry 168

coat rain clock rain bread straße.
- [ ] quince 東京 letter план.
- [x] tea naïve clock mañana bread naïve straße.
- [ ] Kitchen ποίημα window ποίημα straße window garden ποίημα план letter.

See [[Entry 115]] and [[entry 137|another one]].

![](picture%2024%20%C3%A4.png) [paper](<paper''s "24".pdf>)', NULL),
(257, '# Entry 169

план tea letter bread tea.
- [ ] Kitchen план Kitchen.
', NULL),
(258, '# Entry 170

window tea Kitchen çay Kitchen Übung.

#ideas/later #work/übung
- [x] coat quince bread Kitchen garden Ærø.
- [ ] ποίημα план Ærø план quince naïve ποίημα mañana.
- [ ] 서울 ladder straße clock çay çay Ærø rain.
', NULL),
(259, '# Entry 171

Kitchen Kitchen garden.

#reise/norge #café
- [x] план quince план Übung.
- [x] Übung river clock tea ladder Übung.
- [x] 서울 ποίημα naïve ποίημα.
', NULL),
(261, '# Entry 172

mañana naïve 서울 ποίημα naïve mañana Ærø.

#work #reise/norge
- [ ] rain river coat window план план ladder coat ladder.
- [x] garden straße mañana letter план river quince.

See [[Entry 44]] and [[entry 128|another one]].
', NULL),
(262, '# Entry 173

mañana план ladder window clock bread 서울 mañana 서울 Kitchen ποίημα.

#reise/norge #two words#
- [ ] çay coat garden Kitchen straße letter 서울.
', NULL),
(263, '# Entry 174

mañana quince coat mañana coat window 東京 window Übung.

#日本/料理 #home/kitchen/shelf
- [x] bread rain rain straße 서울 ποίημα.
- [x] ποίημα letter 東京 straße clock coat.
- [x] window 서울 bread garden.

```
int answer = 42;
```
', NULL),
(264, '# Entry 175

ladder Ærø bread clock window coat ποίημα Kitchen ποίημα.

#home #日本/料理
- [ ] quince rain quince naïve план window.
- [x] garden bread tea.
- [x] 東京 ladder Übung window mañana Ærø Ærø coat bread.

```
int answer = 42;
```

![](<picture 25 ä.png>) [paper](<paper''s "25".pdf>)', NULL),
(265, '# Entry 176

window 서울 Kitchen Ærø clock.
- [x] план clock clock план 서울 bread coat naïve coat.
- [ ] straße garden mañana 서울 garden quince straße ποίημα clock.
- [x] window naïve Übung çay tea 東京 clock rain bread.

```
int answer = 42;
```
', NULL),
(266, '# Entry 177

mañana letter план mañana.
- [x] план Kitchen çay garden garden 서울 서울 window.
', NULL),
(267, '# Entry 178

ποίημα bread naïve.

#café #home/kitchen
', NULL),
(268, '# Entry 179

tea 東京 quince rain mañana.

#café #Work/Übung
', NULL),
(269, '# Entry 180

bread letter coat mañana bread naïve.

#home/kitchen/shelf #日本/料理
- [x] 서울 naïve bread rain naïve.
- [ ] ladder naïve river план clock Kitchen 東京 mañana.
- [x] letter Übung çay naïve.
', NULL),
(271, '# Entry 181

Übung bread quince letter window river coat ποίημα план mañana 서울.
- [x] план Übung window letter.
- [x] garden garden window mañana clock straße clock mañana.
- [x] letter Kitchen 東京 çay straße straße rain river.
', NULL),
(272, NULL, X'6369706865722080FF206F66206E6F746520313832'),
(273, '# Entry 183

naïve rain ποίημα garden план план quince.
- [x] 서울 window 서울 план rain straße garden Ærø window Ærø Kitchen.

    indented letter straße coat 서울.
', NULL),
(274, '# Entry 184

naïve naïve river Übung window bread ladder 東京.
- [x] tea çay çay clock garden clock çay.

See [[Entry 104]] and [[entry 31|another one]].
', NULL),
(275, '# Entry 185

letter план window Kitchen quince Übung clock çay letter çay.
- [ ] naïve straße план clock.
- [ ] план garden ladder 東京 coat garden quince.
- [x] letter ποίημα Kitchen Kitchen straße Ærø naïve Übung garden quince clock.

```
int answer = 42;
```
', NULL),
(276, '# Entry 186

coat coat tea window mañana план naïve Kitchen tea garden.

#two words# #home/kitchen

See [[Entry 194]] and [[entry 38|another one]].

```
int answer = 42;
```
', NULL),
(277, '# Entry 187

bread garden clock clock garden rain coat quince rain.

#work/übung #two words#
', NULL),
(278, '# Entry 188

mañana 서울 tea bread 서울 letter ποίημα coat.

#reise/norge #work/übung
- [ ] coat план ποίημα çay clock river quince rain.

```
int answer = 42;
```
', NULL),
(279, '# Entry 189

ποίημα ποίημα ποίημα rain 서울 naïve çay window garden garden.

#work #Work/Übung
- [ ] ποίημα naïve Kitchen Übung quince window river Ærø 서울.

![](<picture 27 ä.png>)', NULL),
(281, '# Entry 190

straße ladder Übung quince Ærø çay Übung.

#日本/料理 #two words#
- [ ] Kitchen 東京 mañana 東京 clock 東京 ladder window quince.

See [[Entry 388]] and [[entry 335|another one]].
', NULL),
(282, '# Entry 191

bread Übung план rain.
- [ ] rain straße Übung garden coat Ærø naïve quince quince.
- [ ] coat rain 東京 bread tea rain çay ποίημα 서울.
', NULL),
(283, '# Entry 192

rain çay Übung letter straße.

#work/übung #two words#
- [ ] clock river 서울 naïve coat clock window.
- [x] letter Übung Kitchen straße window çay 서울 çay tea 서울.

```
int answer = 42;
```
', NULL),
(284, '# Entry 193

letter coat Übung mañana rain.
- [x] план tea letter ποίημα river coat naïve river.
- [x] ποίημα 東京 straße 東京 Übung rain.
- [ ] letter Kitchen Übung quince план Übung naïve garden план quince.
', NULL),
(285, '# Entry 194

東京 rain clock naïve çay window 서울.

#reise/norge #home/kitchen/shelf
- [ ] river window river coat ladder bread.
- [x] план garden Kitchen tea garden çay.

See [[Entry 194]] and [[entry 134|another one]].
', NULL),
(286, '# Entry 195

mañana план 東京 서울 çay Ærø Ærø Übung 서울.

#home #home
- [x] river Kitchen rain 서울 Übung 東京 bread Übung ladder.
- [ ] план mañana coat 東京 Übung Ærø план.
- [x] ποίημα clock rain ladder straße.

See [[Entry 228]] and [[entry 210|another one]].
', NULL),
(287, '# Entry 196

ladder rain 東京 mañana naïve Kitchen naïve rain tea.
- [ ] tea naïve coat.
- [x] Übung Ærø window rain 서울 garden ladder 서울 план 東京 bread.
- [ ] quince window ποίημα bread.

```
int answer = 42;
```

![](picture%2028%20%C3%A4.png) [paper](<paper''s "28".pdf>)', NULL),
(288, '# Entry 197

план naïve 東京 Kitchen coat ποίημα 서울 letter mañana letter window.

#home #café
- [x] Ærø Ærø window план letter river Kitchen план letter план 東京.
', NULL),
(289, NULL, X'6369706865722080FF206F66206E6F746520313938'),
(291, '# Entry 199

river tea coat coat.

#two words# #home/kitchen
- [ ] naïve naïve clock rain letter window план garden план.
', NULL),
(292, '# Entry 200

naïve Ærø план ladder river.

#ideas/later #work/übung
- [x] çay ladder план.
- [x] letter coat tea clock garden tea.
- [ ] bread Kitchen çay quince ladder Kitchen bread naïve ποίημα 東京.

    indented garden river ladder letter naïve rain.
', NULL),
(293, '# Entry 201

ποίημα tea 東京 tea tea quince garden mañana coat clock.

#work/übung #日本/料理
- [ ] Ærø quince 東京.

See [[Entry 242]] and [[entry 318|another one]].

    indented 서울 river bread coat ποίημα tea coat ladder naïve letter tea.
', NULL),
(294, '# Entry 202

letter çay mañana ποίημα 서울 bread window river 東京 garden coat.
- [ ] çay çay garden straße clock.
- [x] letter Kitchen garden letter window Ærø clock bread clock.
- [x] ποίημα çay ladder Übung coat window 東京 window river Ærø.

```
int answer = 42;
```
', NULL),
(295, '# Entry 203

naïve план letter garden straße window çay naïve quince window window.

#ideas #work/übung
- [x] coat letter naïve river Ærø.
- [x] garden quince Ærø mañana bread.
- [ ] coat letter ποίημα Ærø Übung.

![](<picture 29 ä.png>) [paper](<paper''s "29".pdf>)', NULL),
(296, '# Entry 204

rain план 東京 Ærø Ærø ποίημα ladder.

#ideas #reise/norge

See [[Entry 142]] and [[entry 84|another one]].

```
int answer = 42;
```
', NULL),
(297, '# Entry 205

garden план bread ποίημα naïve mañana план mañana bread garden.

#work #café
- [x] план план ladder Ærø.
- [ ] letter rain clock план window ποίημα.

See [[Entry 40]] and [[entry 13|another one]].
', NULL),
(298, '# Entry 206

quince Kitchen 서울 план план ποίημα ποίημα naïve bread.
- [ ] letter garden window ladder mañana ποίημα mañana.
', NULL),
(299, '# Entry 207

東京 план Übung mañana.
', NULL),
(301, '# Entry 208

ladder план план.
- [ ] window letter rain quince naïve garden river ladder garden mañana 서울.
- [x] Kitchen Kitchen river naïve ποίημα.
- [ ] naïve mañana rain çay bread.
', NULL),
(302, '# Entry 209

naïve window letter straße Kitchen.

#home/kitchen/shelf #two words#
- [x] план river ποίημα river naïve ποίημα river straße çay 서울 план.
- [ ] clock garden Übung quince план 서울 window quince Ærø.
', NULL),
(303, '# Entry 210

quince window Kitchen.

#Work/Übung #Work/Übung
- [x] Kitchen mañana naïve 서울 clock coat bread 서울 ladder.
- [x] straße ποίημα river rain naïve ladder letter 東京.

![](picture%2030%20%C3%A4.png)', NULL),
(304, '# Entry 211

ποίημα tea window Ærø clock Übung.

#café #work/übung
- [x] план quince 東京 window naïve quince mañana quince bread bread quince.
- [x] tea quince letter.

```
int answer = 42;
```
', NULL),
(305, '# Entry 212

tea rain Ærø naïve naïve naïve coat naïve bread Kitchen.
- [ ] план mañana tea naïve ladder.
- [ ] clock план ποίημα rain quince.
', NULL),
(306, '# Entry 213

coat план straße mañana Kitchen garden план river letter mañana.

#ideas/later #home/kitchen
- [ ] naïve Übung straße çay letter rain Kitchen mañana naïve naïve.

See [[Entry 391]] and [[entry 93|another one]].

```
int answer = 42;
```
', NULL),
(307, NULL, X'6369706865722080FF206F66206E6F746520323134'),
(308, '# Entry 215

letter çay çay clock ποίημα ποίημα Übung rain Übung Ærø 서울.
- [ ] window letter letter.
- [x] garden ποίημα straße Kitchen window Übung.
- [ ] garden coat mañana naïve letter 東京 서울.
', NULL),
(309, '# Entry 216

clock clock çay window tea.

#Work/Übung #work/übung
- [x] clock mañana straße çay tea garden bread garden ποίημα window window.
', NULL),
(311, '# Entry 217

東京 naïve 서울.

#café #ideas
- [ ] window 東京 ποίημα bread coat letter bread Ærø Kitchen.
- [x] Übung Übung window ladder план naïve ladder clock.

![](<picture 31 ä.png>)', NULL),
(312, '# Entry 218

bread Kitchen letter.

#ideas #two words#

See [[Entry 111]] and [[entry 271|another one]].

```
int answer = 42;
```
', NULL),
(313, '# Entry 219

mañana çay 東京 ποίημα river garden rain çay naïve Übung.

#two words# #ideas/later
- [x] 서울 서울 letter coat.
- [x] bread çay clock ποίημα Ærø ποίημα tea план.
- [x] clock letter quince Ærø ladder quince 東京 straße mañana.

See [[Entry 245]] and [[entry 395|another one]].
', NULL),
(314, '# Entry 220

çay ladder 서울 ladder river coat rain ladder.

#ideas #reise/norge
- [x] garden quince bread clock tea.
- [ ] garden Übung mañana river coat.
- [x] план 東京 Kitchen quince naïve ladder 서울 letter coat Kitchen mañana.
', NULL),
(315, '# Entry 221

ladder garden river Übung.

#Work/Übung #日本/料理
', NULL),
(316, '# Entry 222

tea naïve letter window Kitchen mañana coat bread Übung bread.

#two words# #work
', NULL),
(317, '# Entry 223

clock mañana rain ladder clock bread window 東京.

#reise/norge #home/kitchen

```
int answer = 42;
```

    indented 東京 river Übung ποίημα ladder rain river naïve Kitchen.
', NULL),
(318, '# Entry 224

ladder bread Ærø ladder coat coat window mañana tea garden.

#ideas #ideas

![](picture%2032%20%C3%A4.png) [paper](<paper''s "32".pdf>)', NULL),
(319, '# Entry 225

Übung straße Ærø naïve quince Übung river bread mañana ποίημα coat.

#Work/Übung #home/kitchen
- [x] quince Kitchen ποίημα letter.
- [ ] план straße window 東京 rain Übung coat coat.
- [ ] bread straße quince naïve quince mañana Übung ποίημα 서울 tea.

See [[Entry 369]] and [[entry 363|another one]].
', NULL),
(321, '# Entry 226

план letter mañana river quince план clock clock.

#ideas #Work/Übung
- [ ] mañana window straße Kitchen river mañana coat.
- [x] Ærø letter mañana çay Ærø quince rain çay çay.
', NULL),
(322, '# Entry 227

garden window letter.

    indented 東京 Übung garden bread coat bread.
', NULL),
(323, '# Entry 228

clock window bread Übung letter tea rain mañana план.
- [ ] window clock garden çay ladder clock letter clock ποίημα naïve.
- [x] quince river 東京 letter.
', NULL),
(324, '# Entry 229

clock window straße clock ποίημα план naïve 東京.
- [x] quince quince ποίημα ladder Ærø 서울 Kitchen rain çay mañana ladder.
- [x] garden naïve garden river bread naïve.
- [x] clock Ærø clock naïve.

```
int answer = 42;
```
', NULL),
(325, NULL, X'6369706865722080FF206F66206E6F746520323330'),
(326, '# Entry 231

garden ποίημα straße window naïve план mañana.

#work #two words#

See [[Entry 240]] and [[entry 334|another one]].

![](<picture 33 ä.png>) [paper](<paper''s "33".pdf>)', NULL),
(327, '# Entry 232

clock letter bread.

#work #two words#
- [x] ποίημα naïve straße ladder rain ladder çay ποίημα план 東京 clock.
- [x] Kitchen Kitchen ladder çay 東京 çay bread Kitchen.
- [ ] window ladder 서울 straße bread straße window clock.

```
int answer = 42;
```
', NULL),
(328, '# Entry 233

rain çay mañana quince garden rain naïve coat.
- [ ] coat Kitchen garden ladder ποίημα 서울.
- [x] rain naïve mañana план.
- [ ] mañana 東京 ποίημα Kitchen.
', NULL),
(329, '# Entry 234

rain 東京 rain straße Übung mañana çay.

#work #home/kitchen
- [ ] Kitchen Übung tea tea naïve 서울 coat ποίημα clock.
- [x] naïve rain tea clock Ærø straße river clock clock.

See [[Entry 161]] and [[entry 365|another one]].
', NULL),
(331, '# Entry 235

letter naïve straße coat bread.

#home/kitchen/shelf #home/kitchen/shelf
', NULL),
(332, '# Entry 236

garden naïve Übung naïve quince Übung Ærø çay straße план.

See [[Entry 10]] and [[entry 392|another one]].
', NULL),
(333, '# Entry 237

bread Übung Kitchen Ærø план river Ærø naïve план letter.
- [ ] план quince tea river 東京 garden ladder.
- [x] ladder 東京 tea план garden coat quince.
', NULL),
(334, '# Entry 238

coat 東京 letter ποίημα çay tea 東京 東京.
- [ ] bread letter план çay Übung Kitchen.
- [ ] straße bread ποίημα Kitchen Ærø garden ποίημα window 서울 Ærø bread.
- [x] 東京 river letter clock clock coat 東京.

![](picture%2034%20%C3%A4.png)', NULL),
(335, '# Entry 239

план mañana garden 서울 Ærø coat çay Ærø.
- [x] coat çay Übung 東京 Übung quince.
- [x] Ærø план Ærø naïve clock çay coat naïve straße.

See [[Entry 245]] and [[entry 356|another one]].

```
int answer = 42;
```

    indented rain план window 東京 東京 東京 coat naïve.
', NULL),
(336, '# Entry 240

rain tea naïve ποίημα garden straße quince.

#ideas #work/übung
- [x] mañana river straße Kitchen 서울 garden river Kitchen Übung naïve letter.
- [ ] Übung 東京 straße coat ladder 서울 coat bread 東京 ladder mañana.
', NULL),
(337, '# Entry 241

çay 서울 ladder rain clock naïve.
', NULL),
(338, '# Entry 242

quince clock 東京 Ærø Ærø rain straße.

#home/kitchen/shelf #work
', NULL),
(339, '# Entry 243

план ladder river naïve clock straße quince river letter quince.

#work #ideas/later
- [ ] Ærø tea clock ποίημα letter çay mañana.
- [ ] ποίημα Ærø 東京 tea.
- [x] çay window 서울 Übung 東京.

```
int answer = 42;
```
', NULL),
(341, '# Entry 244

çay tea clock window river ποίημα.
- [x] tea quince Ærø Übung coat window Übung mañana план straße.
- [x] quince план план coat river.
', NULL),
(342, '# Entry 245

clock 東京 서울 naïve.

#work #ideas/later
- [x] ποίημα 東京 çay Kitchen Kitchen bread çay coat bread.
- [x] bread ladder naïve.
- [x] Ærø 東京 rain quince 東京 rain naïve 東京 Kitchen river quince.

![](<picture 35 ä.png>)', NULL),
(343, NULL, X'6369706865722080FF206F66206E6F746520323436'),
(344, '# Entry 247

tea 서울 mañana Ærø 서울 서울 bread Ærø river 東京.
- [x] ποίημα 東京 Ærø letter Ærø 서울 river.
- [x] coat Kitchen river quince Ærø.
- [ ] letter letter Übung Ærø quince.
', NULL),
(345, '# Entry 248

naïve clock bread mañana letter 東京 東京 Kitchen mañana.

#ideas/later #home/kitchen
', NULL),
(346, '# Entry 249

rain rain coat bread clock план план quince.

#work #work
- [x] Ærø tea window rain ποίημα coat rain ladder Ærø.
- [ ] ποίημα straße garden letter mañana bread 서울 straße bread straße.
', NULL),
(347, '# Entry 250

coat ladder tea tea tea Kitchen river mañana.

#日本/料理 #ideas
- [ ] tea straße window.

```
int answer = 42;
```
', NULL),
(348, '# Entry 251

river coat Übung Kitchen bread Kitchen.
- [x] ποίημα straße letter.
', NULL),
(349, '# Entry 252

garden rain 東京 ladder 東京 çay.

#reise/norge #reise/norge
- [ ] window bread letter ladder Ærø quince window clock.
- [x] Übung letter window план tea clock window.
- [ ] Kitchen mañana çay çay ποίημα bread naïve garden ladder tea план.

See [[Entry 174]] and [[entry 242|another one]].

    indented naïve Übung Übung tea quince 서울 naïve.

![](picture%2036%20%C3%A4.png) [paper](<paper''s "36".pdf>)', NULL),
(351, '# Entry 253

план rain bread ladder letter mañana coat bread clock straße.

#home/kitchen/shelf #work
- [ ] ladder mañana letter coat 서울 Kitchen coat.
- [x] window rain window tea naïve naïve 東京 東京 bread coat.
- [ ] letter river mañana.
', NULL),
(352, '# Entry 254

Übung 서울 план план clock garden garden.
- [x] clock river bread çay bread garden coat Ærø coat coat.

See [[Entry 333]] and [[entry 141|another one]].
', NULL),
(353, '# Entry 255

ladder ladder Ærø rain.

#home/kitchen/shelf #ideas/later
- [ ] naïve Kitchen quince clock rain Ærø Übung 東京 coat naïve tea.
- [x] tea çay Kitchen window mañana.
- [x] letter river rain garden 서울 clock çay quince window.

```
int answer = 42;
```
', NULL),
(354, '# Entry 256

river clock window window rain tea letter çay bread Kitchen.

#ideas #two words#
- [x] letter 서울 tea ladder bread Kitchen Kitchen.
- [x] mañana Übung river tea window ladder bread clock bread bread 東京.

See [[Entry 339]] and [[entry 250|another one]].

    indented ποίημα river bread garden tea.
', NULL),
(355, '# Entry 257

ladder Ærø straße clock.

#home/kitchen/shelf #home/kitchen/shelf
- [x] Kitchen ποίημα quince garden Kitchen letter.
- [x] Kitchen naïve Übung letter rain straße rain straße.
- [x] straße window Ærø 서울 window Übung coat naïve quince letter mañana.
', NULL),
(356, '# Entry 258

план ποίημα Kitchen rain garden ladder 東京 window çay window clock.

#home #home
- [ ] ladder letter ladder план bread garden Ærø straße план tea.

```
int answer = 42;
```
', NULL),
(357, '# Entry 259

letter window ποίημα.

See [[Entry 366]] and [[entry 218|another one]].

![](<picture 37 ä.png>) [paper](<paper''s "37".pdf>)', NULL),
(358, '# Entry 260

서울 coat ladder mañana ποίημα bread tea Ærø mañana Ærø.

#日本/料理 #ideas
- [x] ποίημα bread bread garden ladder.
- [ ] window 東京 ποίημα garden naïve 東京 東京 서울 Ærø.

See [[Entry 162]] and [[entry 81|another one]].
', NULL),
(359, '# Entry 261

tea ποίημα clock mañana window.

#home/kitchen #café
- [ ] 東京 bread 서울 coat ποίημα Übung naïve quince naïve coat 서울.
- [x] garden garden clock 서울 서울 tea bread.
- [ ] mañana tea clock план naïve ladder garden Kitchen.
', NULL),
(361, NULL, X'6369706865722080FF206F66206E6F746520323632'),
(362, '# Entry 263

window çay bread bread Kitchen rain.
- [ ] rain mañana straße garden 東京 bread Ærø çay rain.
- [ ] window Ærø план план tea Ærø.
- [ ] çay quince quince mañana tea tea naïve 東京.
', NULL),
(363, '# Entry 264

quince clock coat rain straße çay.

#ideas #home/kitchen

```
int answer = 42;
```

    indented quince clock 서울 Übung garden Ærø ladder tea.
', NULL),
(364, '# Entry 265

naïve çay tea window çay çay çay ποίημα coat.

#Work/Übung #home
- [x] Kitchen quince tea 東京 window river 서울 naïve garden tea.

See [[Entry 180]] and [[entry 330|another one]].
', NULL),
(365, '# Entry 266

ποίημα план план tea garden.
- [ ] ladder ladder mañana ποίημα Übung mañana Kitchen bread rain.
- [x] bread window план rain çay.

See [[Entry 283]] and [[entry 74|another one]].

```
int answer = 42;
```

![](picture%2038%20%C3%A4.png)', NULL),
(366, '# Entry 267

Ærø Übung 東京 window clock.
- [ ] çay план clock ladder letter.
', NULL),
(367, '# Entry 268

letter ποίημα Übung quince mañana tea bread Ærø tea Übung Übung.

#home/kitchen #home/kitchen/shelf
- [x] rain Übung rain garden clock straße план 서울 çay 東京 clock.
- [x] coat naïve Ærø.
- [ ] Ærø coat mañana ladder.

```
int answer = 42;
```
', NULL),
(368, '# Entry 269

quince Kitchen 서울 ladder Übung.

#café #reise/norge
', NULL),
(369, '# Entry 270

서울 rain letter.

#ideas #日本/料理
- [ ] план çay Kitchen Ærø clock план garden quince.
- [x] clock letter mañana river Ærø.

See [[Entry 348]] and [[entry 376|another one]].

    indented quince river çay.
', NULL),
(371, '# Entry 271

straße quince window Kitchen clock çay.

#work #Work/Übung
- [ ] coat ποίημα 東京 naïve coat.
- [ ] coat rain quince Kitchen 서울 garden ladder river garden ladder.

See [[Entry 288]] and [[entry 148|another one]].
', NULL),
(372, '# Entry 272

naïve ladder bread Übung 서울 bread.

#ideas/later #日本/料理
- [x] tea garden Kitchen window coat 서울 Ærø Ærø çay mañana bread.
- [x] letter letter план.
', NULL),
(373, '# Entry 273

garden план river rain ladder.

See [[Entry 0]] and [[entry 221|another one]].

```
int answer = 42;
```

![](<picture 39 ä.png>)', NULL),
(374, '# Entry 274

river ladder ποίημα letter ladder çay план bread ποίημα river ποίημα.

#work/übung #work/übung
- [ ] coat mañana letter rain clock Ærø garden Übung.
- [x] naïve coat letter.
- [x] tea clock ladder.

See [[Entry 385]] and [[entry 88|another one]].
', NULL),
(375, '# Entry 275

план straße ladder bread 東京.

#home/kitchen/shelf #ideas
- [ ] Übung window mañana план letter window clock.
- [x] window ποίημα window ποίημα.
', NULL),
(376, '# Entry 276

letter quince Kitchen clock quince coat çay 서울 서울.
- [ ] garden coat clock план straße tea river план.
- [x] план план clock ladder Ærø.
- [x] 東京 東京 garden 서울 ladder coat naïve coat.

See [[Entry 88]] and [[entry 339|another one]].

    indented river 東京 çay garden clock 서울.
', NULL),
(377, '# Entry 277

letter straße window clock çay tea bread quince naïve river.

#日本/料理 #home
- [x] 東京 clock clock Übung naïve mañana clock.
- [ ] letter garden çay ποίημα çay straße straße mañana naïve naïve 서울.
- [x] clock window 東京 clock ποίημα letter coat Übung window.
', NULL),
(378, NULL, X'6369706865722080FF206F66206E6F746520323738'),
(379, '# Entry 279

tea garden window window window план ποίημα coat letter window mañana.
- [x] Ærø Übung naïve clock quince quince ποίημα tea garden çay.
', NULL),
(381, '# Entry 280

naïve bread ladder Übung çay river.

#ideas #home/kitchen
', NULL),
(382, '# Entry 281

東京 bread quince çay clock ladder.

#日本/料理 #two words#
- [x] Ærø 서울 план 東京 план naïve Ærø 서울 straße план naïve.
- [x] 서울 ladder Übung straße 서울 çay quince 東京 tea straße river.

```
int answer = 42;
```
', NULL),
(383, '# Entry 282

план 東京 ποίημα clock план.
- [x] straße ladder quince bread Kitchen ποίημα tea.
- [ ] straße letter clock 서울.
', NULL),
(384, '# Entry 283

Übung letter river bread river.
- [x] mañana 서울 bread çay coat.
- [x] clock quince garden.
- [x] straße ποίημα straße naïve Ærø 서울 rain letter.
', NULL),
(385, '# Entry 284

план window çay straße coat Übung.

#reise/norge #ideas
- [ ] river 서울 tea garden letter.
- [x] 서울 river ποίημα çay çay coat.
- [x] clock naïve çay Ærø Kitchen 東京 letter план straße tea.

See [[Entry 329]] and [[entry 55|another one]].
', NULL),
(386, '# Entry 285

서울 rain mañana garden clock план 東京 ladder bread Kitchen.

See [[Entry 85]] and [[entry 18|another one]].
', NULL),
(387, '# Entry 286

tea straße window tea mañana 東京 Übung bread garden Kitchen naïve.

#日本/料理 #reise/norge
', NULL),
(388, '# Entry 287

quince çay Übung tea ladder 서울 Ærø bread.

#work #ideas/later
- [x] Kitchen Kitchen naïve 東京 ladder.
- [ ] Ærø Ærø window straße ladder.
- [ ] straße straße Kitchen.
', NULL),
(389, '# Entry 288

straße Kitchen window çay bread river tea naïve garden letter.

#ideas #home
- [ ] river Kitchen Übung clock Übung.
- [x] ποίημα letter clock naïve rain.
- [ ] 서울 rain çay Ærø garden Übung Ærø window letter.

    indented straße Kitchen 서울 quince river.
', NULL),
(391, '# Entry 289

window garden ποίημα river letter mañana straße план.
- [x] Übung straße 서울 ποίημα çay river clock.
- [ ] naïve план 東京.
- [ ] 서울 çay naïve.

    indented quince çay ladder quince tea clock garden план.
', NULL),
(392, '# Entry 290

naïve garden clock çay план straße mañana river.
- [ ] garden river 東京 bread garden river 서울.
- [ ] coat clock ποίημα window ποίημα Übung ladder Ærø.
- [ ] quince план garden mañana çay clock naïve quince window Kitchen ποίημα.

    indented rain Ærø straße coat ladder.
', NULL),
(393, '# Entry 291

東京 план window tea 서울 çay 東京 mañana naïve Kitchen letter.
- [x] river 東京 ladder Ærø bread quince river clock letter.
- [x] rain rain letter naïve.
- [ ] tea ποίημα Kitchen clock Kitchen bread 서울 東京 mañana Ærø.

```
int answer = 42;
```
', NULL),
(394, '# Entry 292

서울 coat tea 서울 river straße ladder.
- [ ] straße tea 東京 план ladder 서울 Ærø.
- [x] quince Kitchen Kitchen letter план.
', NULL),
(395, '# Entry 293

ποίημα 東京 rain Kitchen letter naïve bread.

#Work/Übung #home
- [ ] Kitchen Kitchen bread tea coat план çay Übung Übung.
- [x] Kitchen mañana garden çay letter window.
', NULL),
(396, NULL, X'6369706865722080FF206F66206E6F746520323934'),
(397, '# Entry 295

tea rain clock coat bread.

See [[Entry 375]] and [[entry 65|another one]].
', NULL),
(398, '# Entry 296

window Ærø river quince Übung ποίημα Kitchen Übung ladder river 서울.

#日本/料理 #café
- [ ] letter 서울 çay Übung clock Kitchen 서울 tea.
- [x] план river coat Ærø.

See [[Entry 94]] and [[entry 271|another one]].
', NULL),
(399, '# Entry 297

Kitchen coat ladder river Ærø ποίημα Ærø river план.
- [ ] quince Übung çay rain naïve rain window план ποίημα 東京.
', NULL),
(401, '# Entry 298

straße straße river план window window 東京 coat.

#work #home/kitchen
- [x] 서울 東京 letter Übung rain garden.
', NULL),
(402, '# Entry 299

garden tea window 東京 東京 ποίημα.

#reise/norge #home/kitchen/shelf
- [x] straße tea window garden.
- [ ] ladder garden mañana.
- [x] letter tea ladder.
', NULL),
(403, '# Entry 300

ποίημα 서울 план quince план 東京 план.
- [ ] 東京 window quince Ærø straße Ærø tea Übung quince quince.

See [[Entry 62]] and [[entry 357|another one]].

```
int answer = 42;
```
', NULL),
(404, '# Entry 301

mañana план tea coat straße ποίημα план tea 東京 ποίημα план.

#ideas #home
- [ ] mañana naïve river ladder Kitchen letter river clock rain clock letter.
- [x] Kitchen bread quince 東京 ladder letter.
- [x] rain ποίημα 東京 quince çay.
', NULL),
(405, '# Entry 302

clock naïve tea.

#home/kitchen/shelf #日本/料理
- [ ] çay 서울 window mañana.
- [x] Ærø straße план rain çay river clock window 서울 window.
- [ ] rain Ærø garden quince план.
', NULL),
(406, '# Entry 303

letter 서울 quince Kitchen tea straße rain 東京 tea.

#ideas #日本/料理
- [ ] straße mañana window 서울 quince river clock naïve.
- [ ] river garden bread quince 東京 rain.
', NULL),
(407, '# Entry 304

bread ποίημα clock план straße rain bread garden ladder garden ποίημα.

#ideas/later #ideas/later
- [ ] çay 서울 çay garden clock.
- [x] Übung Kitchen Übung ladder Übung clock.
- [x] 서울 bread план ποίημα.
', NULL),
(408, '# Entry 305

window bread river 서울.

#日本/料理 #Work/Übung
- [x] letter rain rain garden coat çay 東京 straße план.

```
int answer = 42;
```
', NULL),
(409, '# Entry 306

bread clock Kitchen rain naïve tea tea bread план.

#Work/Übung #日本/料理

```
int answer = 42;
```
', NULL),
(411, '# Entry 307

bread clock letter ποίημα план tea.
- [x] river 東京 naïve ποίημα ποίημα rain letter bread letter ladder Übung.
- [x] clock план letter план çay.
- [x] coat tea ποίημα rain 東京 clock straße Ærø window çay straße.
', NULL),
(412, '# Entry 308

Kitchen bread river 東京.

#ideas #work
- [ ] Kitchen bread rain river mañana Kitchen river quince Ærø.
- [ ] river bread quince bread river çay çay bread tea Kitchen.
- [x] coat ποίημα garden window ποίημα 東京 çay letter план.

See [[Entry 222]] and [[entry 193|another one]].
', NULL),
(413, '# Entry 309

river Übung clock clock.

#日本/料理 #home/kitchen/shelf

See [[Entry 358]] and [[entry 187|another one]].

    indented mañana coat ladder rain river Ærø clock straße Ærø window Übung.
', NULL),
(414, NULL, X'6369706865722080FF206F66206E6F746520333130'),
(415, '# Entry 311

tea Ærø 東京 rain Übung quince Kitchen Ærø quince letter garden.

#ideas #Work/Übung
- [ ] 東京 garden tea straße план Ærø letter çay план Kitchen ποίημα.
', NULL),
(416, '# Entry 312

garden quince naïve ladder bread coat mañana 서울 Kitchen garden.
- [x] Übung bread Kitchen quince mañana план 서울.
- [x] план 東京 Kitchen.
- [ ] çay 東京 東京 ladder coat план clock letter Kitchen coat clock.
', NULL),
(417, '# Entry 313

garden ladder coat 東京 Übung Übung план Kitchen rain tea Ærø.
- [x] letter ladder mañana.

See [[Entry 218]] and [[entry 178|another one]].
', NULL),
(418, '# Entry 314

tea rain Ærø window Kitchen mañana coat çay план bread naïve.

#ideas #café
- [x] ladder garden план garden quince ποίημα Übung coat 東京 bread Ærø.

```
int answer = 42;
```
', NULL),
(419, '# Entry 315

window Übung Ærø bread coat Übung garden.
- [x] план ποίημα coat coat.
- [ ] straße Ærø 東京 tea straße ladder Kitchen.
- [x] план naïve bread mañana план план clock.
', NULL),
(421, '# Entry 316

çay ποίημα çay 서울 letter.
', NULL),
(422, '# Entry 317

план garden coat rain ladder clock clock.
- [ ] bread window clock river clock.

```
int answer = 42;
```
', NULL),
(423, '# Entry 318

quince letter Übung rain straße.

#two words# #reise/norge
- [ ] river naïve 서울 ladder tea coat çay rain rain naïve bread.

```
int answer = 42;
```
', NULL),
(424, '# Entry 319

garden window quince garden bread window.
', NULL),
(425, '# Groceries

milk and [[Groceries]] again', NULL),
(426, '# AC/DC

is a title with a slash', NULL),
(427, '# x|y [z]

is one to escape', NULL),
(428, '# Éclair

of other letters', NULL),
(429, '![](only-an-image.png)', NULL),
(431, '', NULL),
(432, '# By identifier

[[9D5843A9-0C7D-4536-AB8D-93D94D3CF00A]] and [[CEA9DD77-7629-4F99-A5EF-8D0C116044CB|the empty one]]', NULL),
(433, '# Links

🎉 [[Groceries]] [[ groceries |again]] ![[GROCERIES]] [[AC/DC]] [[x\|y \[z\]]]

[[eclair]] [[ÉCLAIR]] [[nobody has this title]] [[ ]] [[|alias]] \[[Groceries]] `[[Groceries]]`
[[1]](https://example.com) [see [[Groceries]]](x) [[́]]

    [[Groceries]] in code
', NULL),
(434, '# To [[Groceries]]

a link in a title', NULL),
(435, '# Chain one

[[Chain two]]', NULL),
(436, '# Chain two

[[Chain three]] [[Chain one]]', NULL),
(437, '# Twin

the first, in the trash', NULL),
(438, '# twin

the third', NULL),
(439, '# TWIN

the second: links lead here', NULL),
(441, '# Twin

made at no known time, in the trash', NULL),
(442, '# Thrown away

and nothing took its place', NULL),
(443, '# Same moment

of two the one with the lower key', NULL),
(444, '# Same moment

of two the one with the higher key', NULL),
(445, '# To twins

[[Twin]] [[thrown away]] [[Same moment]] [[Dateless]]', NULL),
(446, '# Dateless

what has no date was made first', NULL),
(447, '# Dateless

made later than none', NULL);
INSERT INTO "OVNoteTag" ("pk", "rowVersion", "uniqueIdentifier", "title", "modificationDate", "version", "isRoot", "pinned", "pinnedDate", "pinnedNotesDate", "sorting", "sortingDate", "sortingDirection", "sortingDirectionDate", "icon", "iconDate", "title_folded") VALUES
(1, 2, '5034EECC-3284-4A3F-8F31-27FFAE88B2ED', 'it''s', 1700000000002000, 2, 1, 0, NULL, NULL, 0, NULL, 0, NULL, NULL, NULL, 'it''s'),
(2, 3, '10F5377B-952B-4DD0-A846-CAA53B118F9E', 'behind', 1700000000011000, 1, 1, 0, NULL, NULL, 0, NULL, 0, NULL, 'icon-2 ☂', 1700000001334000, 'behind'),
(3, 4, 'CD1A27EB-3FEF-44F3-96BB-B164FAFF1B00', 'behind/nul', 1700000000012000, 2, 0, 0, NULL, NULL, 3, 1700000001335000, 0, NULL, NULL, NULL, 'behind/nul'),
(4, 5, '086B5658-6F8B-41AB-853B-3F8750695CCF', 'windows', 1700000000018000, 1, 1, 1, 1700000001336000, NULL, 0, NULL, 0, NULL, 'icon-4 ☂', 1700000001337000, 'windows'),
(5, 1, '997D248F-D512-465D-8E40-C55721664760', '🎉', 1700000000027000, 2, 1, 0, NULL, NULL, 0, NULL, 0, 1700000001338000, NULL, NULL, '🎉'),
(6, 2, 'F152DD4F-ED9C-445A-9006-A698FD86ABB9', 'party', 1700000000028000, 1, 1, 0, NULL, NULL, 1, 1700000001339000, 0, NULL, 'icon-6 ☂', 1700000001340000, 'party'),
(7, 3, '95F15569-A4E9-4F68-9304-36FCA27ACCFB', 'party/🥳', 1700000000029000, 2, 0, 0, NULL, NULL, 0, NULL, 0, NULL, NULL, NULL, NULL),
(8, 4, 'D5CC7E13-B552-4A08-8BA9-BA971BBA733C', 'עברית', 1700000000033000, 1, 1, 1, 1700000001341000, NULL, 0, NULL, 0, NULL, 'icon-8 ☂', 1700000001342000, 'עברית'),
(9, 5, 'BB800870-8A08-4563-B568-AE23CECF3631', 'عربي', 1700000000036000, 2, 1, 0, NULL, NULL, 4, 1700000001343000, 0, NULL, NULL, NULL, 'عربي'),
(11, 2, '6C06E162-5F31-4DA2-B676-BB61630D7A8C', 'عربي/يومي', 1700000000037000, 2, 0, 0, NULL, NULL, 0, NULL, 1, 1700000001344000, 'icon-10 ☂', 1700000001345000, 'عربي/يومي'),
(12, 3, '2BA32A03-5DC0-4C85-8A0B-5E6A51D2C17F', 'café', 1700000001201000, 1, 1, 0, NULL, 1700000001447000, 0, NULL, 0, NULL, NULL, NULL, 'cafe'),
(13, 4, 'E60D1ED2-86D7-45DA-9091-7FA546397E1D', '𝔱𝔞𝔤', 1700000000045000, 2, 1, 1, 1700000001346000, NULL, 2, 1700000001347000, 0, NULL, 'icon-12 ☂', 1700000001348000, '𝔱𝔞𝔤'),
(14, 5, '9CD0EF49-F2AE-4E72-AA73-F536D0363033', 'İzmir', 1700000000048000, 1, 1, 0, NULL, NULL, 0, NULL, 0, NULL, NULL, NULL, NULL),
(15, 1, '8733687C-BF40-43D8-BC75-F7B577F4B14B', 'ıspanak', 1700000000049000, 2, 1, 0, NULL, NULL, 0, NULL, 0, NULL, 'icon-14 ☂', 1700000001349000, 'ıspanak'),
(16, 2, '2F49A8F2-F44C-4151-82EE-FE62BCD6DEF7', '한국', 1700000000056000, 1, 1, 0, NULL, NULL, 0, 1700000001350000, 0, 1700000001351000, NULL, NULL, '한국'),
(17, 3, '71F53432-48DE-4129-A856-BD86A40DAD82', 'home', 1700000001317000, 2, 1, 1, 1700000001352000, 1700000001453000, 0, NULL, 0, NULL, 'icon-16 ☂', 1700000001353000, 'home'),
(18, 4, '7D91C5D2-C220-43BC-B9CB-05E148F28831', 'work', 1700000001325000, 1, 1, 0, NULL, 1700000001452000, 0, NULL, 0, NULL, NULL, NULL, 'work'),
(19, 5, '90791D32-DC75-42E4-9615-E3064EBDE933', 'ideas', 1700000001299000, 2, 1, 0, NULL, 1700000001451000, 3, 1700000001354000, 0, NULL, 'icon-18 ☂', 1700000001355000, 'ideas'),
(21, 2, 'A913E70D-87F4-40AC-B820-EACD785890D7', 'a', 1700000000116000, 2, 1, 0, NULL, NULL, 0, NULL, 0, NULL, NULL, NULL, NULL),
(22, 3, 'A06DB838-0186-45A7-B305-02BB4923D19C', 'a/b', 1700000000117000, 1, 0, 1, 1700000001356000, NULL, 0, NULL, 1, 1700000001357000, 'icon-20 ☂', 1700000001358000, 'a/b'),
(23, 4, 'D3DEE1FC-8EC3-4D53-ACFD-0BCD05540B02', 'a/b/c', 1700000000118000, 2, 0, 0, NULL, NULL, 1, 1700000001359000, 0, NULL, NULL, NULL, 'a/b/c'),
(24, 5, 'B0FC3EBA-4A22-49CC-AE85-DECA05B958B4', 'closed tag', 1700000000119000, 1, 1, 0, NULL, NULL, 0, NULL, 0, NULL, 'icon-22 ☂', 1700000001360000, 'closed tag'),
(25, 1, '224BFCC0-700B-4BAF-914A-24DB7806C846', 'in-parentheses', 1700000000120000, 2, 1, 0, NULL, NULL, 0, NULL, 0, NULL, NULL, NULL, 'in-parentheses'),
(26, 2, 'B413327C-2734-4A13-9950-A2B35FC09101', 'home/kitchen', 1700000001318000, 1, 0, 1, 1700000001361000, NULL, 4, 1700000001362000, 0, NULL, 'icon-24 ☂', 1700000001363000, 'home/kitchen'),
(27, 3, '663937DB-AA82-42CD-89FB-C28781EFE9FF', 'first', 1700000000124000, 2, 1, 0, NULL, NULL, 0, NULL, 0, 1700000001364000, NULL, NULL, 'first'),
(28, 4, '28F8A2DB-9EB8-42B9-9C3D-12598ED6A93E', 'home/kitchen/shelf', 1700000001319000, 1, 0, 0, NULL, NULL, 0, NULL, 0, NULL, 'icon-26 ☂', 1700000001365000, NULL),
(29, 5, 'AEF1663F-65CE-42E2-B5FA-01864B789A10', '1st', 1700000000128000, 2, 1, 0, NULL, NULL, 2, 1700000001366000, 0, NULL, NULL, NULL, '1st'),
(31, 2, '6AD751E5-D0BF-4D5C-9E54-DAE01D6E3877', '1st/2nd', 1700000000129000, 2, 0, 1, 1700000001367000, NULL, 0, NULL, 0, NULL, 'icon-28 ☂', 1700000001368000, '1st/2nd'),
(32, 3, '69C09B6A-12AB-4B6C-97FF-46DBF35DC1B9', '1st/2nd/3rd', 1700000000130000, 1, 0, 0, NULL, NULL, 0, NULL, 0, NULL, NULL, NULL, '1st/2nd/3rd'),
(33, 4, '2B7D7860-8763-4456-AF30-9C2B728FB50F', '1st/2nd/3rd/4th', 1700000000131000, 2, 0, 0, NULL, NULL, 0, 1700000001369000, 1, 1700000001370000, 'icon-30 ☂', 1700000001371000, '1st/2nd/3rd/4th'),
(34, 5, '5CE90A90-BD41-46CF-8796-BFDED78D946A', '1st/2nd/3rd/4th/5th', 1700000000132000, 1, 0, 0, NULL, NULL, 0, NULL, 0, NULL, NULL, NULL, '1st/2nd/3rd/4th/5th'),
(35, 1, '9A2E4904-B20C-4819-A7BB-BB354B06800B', '1st/2nd/3rd/4th/5th/6th', 1700000000133000, 2, 0, 1, 1700000001372000, NULL, 0, NULL, 0, NULL, 'icon-32 ☂', 1700000001373000, NULL),
(36, 2, 'D2C52793-BD75-4665-9D98-DDB152F501D7', '1st/2nd/3rd/4th/5th/6th/7th', 1700000000134000, 1, 0, 0, NULL, NULL, 3, 1700000001374000, 0, NULL, NULL, NULL, '1st/2nd/3rd/4th/5th/6th/7th'),
(37, 3, 'FE311428-CDAD-40A3-8AA5-7540E3602ADE', '1st/2nd/3rd/4th/5th/6th/7th/8th', 1700000000135000, 2, 0, 0, NULL, NULL, 0, NULL, 0, NULL, 'icon-34 ☂', 1700000001375000, '1st/2nd/3rd/4th/5th/6th/7th/8th'),
(38, 4, '1522CDC1-6C6A-4383-B9AB-A4B96B8AF09F', 'two words', 1700000001245000, 1, 1, 0, NULL, 1700000001454000, 0, NULL, 0, 1700000001376000, NULL, NULL, 'two words'),
(39, 5, 'EB35EAFB-AE71-44C5-BE98-48CE7443CA20', '日本', 1700000001326000, 2, 1, 1, 1700000001377000, NULL, 1, 1700000001378000, 0, NULL, 'icon-36 ☂', 1700000001379000, '日本'),
(41, 2, 'EE549219-804B-4571-BFBB-EB2C4B1D640D', '日本/料理', 1700000001327000, 2, 0, 0, NULL, NULL, 0, NULL, 0, NULL, NULL, NULL, '日本/料理'),
(42, 3, 'A6FEE351-B4BA-4555-B654-135BEB4D4D48', 'reise', 1700000001320000, 1, 1, 0, NULL, 1700000001444000, 0, NULL, 0, NULL, 'icon-38 ☂', 1700000001380000, NULL),
(43, 4, '2ED2A2FE-0142-43D4-80D8-29D4F83515CA', 'reise/norge', 1700000001321000, 2, 0, 0, NULL, NULL, 4, 1700000001381000, 0, NULL, NULL, NULL, 'reise/norge'),
(44, 5, '862156D6-43D9-4267-9D6D-5C2EFC696E9B', 'work/übung', 1700000001328000, 1, 0, 1, 1700000001382000, NULL, 0, NULL, 1, 1700000001383000, 'icon-40 ☂', 1700000001384000, 'work/ubung'),
(45, 1, 'BE4ED299-35DD-4652-8B92-225B1E331C9E', 'ideas/later', 1700000001302000, 2, 0, 0, NULL, NULL, 0, NULL, 0, NULL, NULL, NULL, 'ideas/later');
INSERT INTO "OVNoteTag_large" ("pk", "serverData") VALUES
(1, NULL),
(2, NULL),
(3, NULL),
(4, NULL),
(5, NULL),
(6, X'73797374656D206669656C6473206F66206120746167'),
(7, NULL),
(8, NULL),
(9, NULL),
(11, NULL),
(12, NULL),
(13, X'73797374656D206669656C6473206F66206120746167'),
(14, NULL),
(15, NULL),
(16, NULL),
(17, NULL),
(18, NULL),
(19, X'73797374656D206669656C6473206F66206120746167'),
(21, NULL),
(22, NULL),
(23, NULL),
(24, NULL),
(25, NULL),
(26, X'73797374656D206669656C6473206F66206120746167'),
(27, NULL),
(28, NULL),
(29, NULL),
(31, NULL),
(32, NULL),
(33, X'73797374656D206669656C6473206F66206120746167'),
(34, NULL),
(35, NULL),
(36, NULL),
(37, NULL),
(38, NULL),
(39, X'73797374656D206669656C6473206F66206120746167'),
(41, NULL),
(42, NULL),
(43, NULL),
(44, NULL),
(45, NULL);
INSERT INTO "OVNoteFile" ("pk", "rowVersion", "entity", "uniqueIdentifier", "filename", "normalizedFileExtension", "fileSize", "index", "creationDate", "modificationDate", "insertionDate", "lastEditingDevice", "version", "downloaded", "uploaded", "uploadedDate", "unused", "unusedDate", "permanentlyDeleted", "skipSync", "encrypted", "encryptionDate", "encryptionUniqueIdentifier", "note", "password", "serverData", "animated", "width", "height") VALUES
(1, 2, 'OVNoteImage', 'C49C5665-CB72-42A6-99B9-DAC4444FE6BA', 'picture 0 ä.png', 'png', 1000, 0, NULL, NULL, 1700000001033000, NULL, 2, 1, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 69, NULL, 1, 1, 0, 0),
(2, 3, 'OVNoteGenericFile', '188830B5-8E03-47F9-8D37-B7F624FEC629', 'paper''s "0".pdf', 'pdf', 0, 1, NULL, NULL, 1700000001034000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 1, 0, NULL, NULL, 69, NULL, NULL, NULL, NULL, NULL),
(3, 4, 'OVNoteImage', 'B2B1A8B1-EB87-4077-87D4-C40B6FBB70EB', 'picture 1 ä.png', 'png', 2021, 0, NULL, NULL, 1700000001035000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 77, NULL, NULL, 0, 16, 9),
(4, 5, 'OVNoteGenericFile', 'B0527999-60FA-4A3D-B870-DABC3B4C9C34', 'paper''s "1".pdf', 'pdf', 1, 1, NULL, NULL, 1700000001036000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 77, NULL, 2, NULL, NULL, NULL),
(5, 1, 'OVNoteImage', 'AFE8E04D-B829-4154-A766-184F9BBC0EDA', 'picture 2 ä.png', 'png', 9168, 0, NULL, NULL, 1700000001037000, NULL, 2, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 85, NULL, NULL, 0, 32, 18),
(6, 2, 'OVNoteGenericFile', '57A461BE-4F97-4B07-8E54-3C74F5FC46A8', 'paper''s "2".pdf', 'pdf', 2, 0, NULL, NULL, 1700000001038000, NULL, 1, 0, 0, NULL, 1, 1700000001039000, 0, 0, 0, NULL, NULL, 85, NULL, NULL, NULL, NULL, NULL),
(7, 3, 'OVNoteImage', 'EEF6D487-901D-409E-A8D5-6CD0D65B07E8', 'picture 3 ä.png', 'png', 28567, 0, NULL, NULL, 1700000001040000, NULL, 2, 1, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 93, NULL, 3, 0, 48, 27),
(8, 4, 'OVNoteImage', '7821705B-D048-4B14-9B89-2DB47C1FD2C8', 'picture 4 ä.png', 'png', 66344, 0, NULL, NULL, 1700000001041000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 101, NULL, NULL, 0, 64, 36),
(9, 5, 'OVNoteGenericFile', 'C8930FE3-EF10-4A0C-AFE8-7FBC4C4D7382', 'paper''s "4".pdf', 'pdf', 4, 1, NULL, NULL, 1700000001042000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 101, NULL, NULL, NULL, NULL, NULL),
(11, 2, 'OVNoteImage', '662CF7D4-EBE1-4EC0-B696-D4278836630E', 'picture 5 ä.png', 'png', 128625, 0, NULL, NULL, 1700000001043000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 108, NULL, 4, 1, 80, 45),
(12, 3, 'OVNoteGenericFile', 'BAECEDBB-059E-4C87-961C-FEB4239AD197', 'paper''s "5".pdf', 'pdf', 5, 1, NULL, NULL, 1700000001044000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 108, NULL, NULL, NULL, NULL, NULL),
(13, 4, 'OVNoteImage', '7CFD3C97-154A-4B3A-9DAE-0CEA5BD76DB8', 'picture 6 ä.png', 'png', 221536, 0, NULL, NULL, 1700000001045000, NULL, 2, 1, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 116, NULL, NULL, 0, 96, 54),
(14, 5, 'OVNoteGenericFile', '8BEBA93E-CFAA-40FE-BC2C-0BC85D0DD51A', 'paper''s "6".pdf', 'pdf', 6, 0, NULL, NULL, 1700000001046000, NULL, 1, 0, 0, NULL, 1, 1700000001047000, 0, 0, 0, NULL, NULL, 116, NULL, 5, NULL, NULL, NULL),
(15, 1, 'OVNoteImage', '1C06BD88-9853-4734-85A3-A0CD5960150C', 'picture 7 ä.png', 'png', 351203, 0, NULL, NULL, 1700000001048000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 124, NULL, NULL, 0, 112, 63),
(16, 2, 'OVNoteImage', '222B956E-49AB-4E6C-8573-E668DD2C7DF7', 'picture 8 ä.png', 'png', 523752, 0, NULL, NULL, 1700000001049000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 132, NULL, NULL, 0, 128, 72),
(17, 3, 'OVNoteGenericFile', '7732EF0D-1CAA-46E4-A24C-5A342E36D88C', 'paper''s "8".pdf', 'pdf', 8, 1, NULL, NULL, 1700000001050000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 132, NULL, 6, NULL, NULL, NULL),
(18, 4, 'OVNoteImage', 'FA7ACF2E-89FD-437D-A23C-C381CE31C70C', 'picture 9 ä.png', 'png', 745309, 0, NULL, NULL, 1700000001051000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 139, NULL, NULL, 0, 144, 81),
(19, 5, 'OVNoteGenericFile', '843D6C8F-5352-4F20-9612-3AC44107C9DA', 'paper''s "9".pdf', 'pdf', 9, 1, NULL, NULL, 1700000001052000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 139, NULL, NULL, NULL, NULL, NULL),
(21, 2, 'OVNoteImage', 'A9516C3D-DA75-485B-AF34-4692A27D0891', NULL, NULL, 0, 0, NULL, NULL, 1700000001053000, NULL, 2, 0, 1, NULL, 0, NULL, 0, 0, 1, 1426204800123456, '98F6CFC5-B364-4A0E-B123-22338302BC11', 147, 1, 7, 1, 160, 90),
(22, 3, 'OVNoteGenericFile', '79551810-B04F-41BE-8BBF-189677DEE09B', NULL, NULL, 0, 0, NULL, NULL, 1700000001054000, NULL, 1, 0, 0, NULL, 1, 1700000001055000, 0, 0, 1, 1426204800123456, 'C8A4152B-1A17-423E-97EE-F58A74AAEEFE', 147, 1, NULL, NULL, NULL, NULL),
(23, 4, 'OVNoteImage', 'ABB6D732-2A0D-4908-9F35-4BD2D155938C', 'picture 11 ä.png', 'png', 1359951, 0, NULL, NULL, 1700000001056000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 155, NULL, NULL, 0, 176, 99),
(24, 5, 'OVNoteImage', '3A9F9257-ADD0-47CD-95B0-C447EDF95B81', 'picture 12 ä.png', 'png', 1765288, 0, NULL, NULL, 1700000001057000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 163, NULL, 8, 0, 192, 108),
(25, 1, 'OVNoteGenericFile', 'B94BB7AB-596F-4792-9117-8E963F78B84B', 'paper''s "12".pdf', 'pdf', 12, 1, NULL, NULL, 1700000001058000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 163, NULL, NULL, NULL, NULL, NULL),
(26, 2, 'OVNoteImage', '094A8881-9921-4824-9E2D-2EECFD79874A', 'picture 13 ä.png', 'png', 2244137, 0, NULL, NULL, 1700000001059000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 171, NULL, NULL, 0, 208, 117),
(27, 3, 'OVNoteGenericFile', 'A7FFD0E8-1194-4E2C-9F74-D4E4D45B4DC2', 'paper''s "13".pdf', 'pdf', 13, 1, NULL, NULL, 1700000001060000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 171, NULL, 9, NULL, NULL, NULL),
(28, 4, 'OVNoteImage', '44BB017D-8BDF-45BC-89F3-0EA3771DD5FA', 'picture 14 ä.png', 'png', 2802624, 0, NULL, NULL, 1700000001061000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 178, NULL, NULL, 0, 224, 126),
(29, 5, 'OVNoteGenericFile', 'F745ACF5-E181-4BA5-990D-E0BC4766BE82', 'paper''s "14".pdf', 'pdf', 14, 0, NULL, NULL, 1700000001062000, NULL, 2, 0, 0, NULL, 1, 1700000001063000, 0, 1, 0, NULL, NULL, 178, NULL, NULL, NULL, NULL, NULL),
(31, 2, 'OVNoteImage', '8603FF11-142D-4604-8B0C-72A5E5F6DC37', 'picture 15 ä.png', 'png', 3446875, 0, NULL, NULL, 1700000001064000, NULL, 2, 1, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 186, NULL, 11, 1, 240, 135),
(32, 3, 'OVNoteImage', 'A9E0F3AB-0DEB-47B7-8BB5-B52DD5F020E3', 'picture 16 ä.png', 'png', 4183016, 0, NULL, NULL, 1700000001065000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 194, NULL, NULL, 0, 256, 144),
(33, 4, 'OVNoteGenericFile', 'EEB97B53-7164-4A4A-9E0A-CE51C859BC67', 'paper''s "16".pdf', 'pdf', 16, 1, NULL, NULL, 1700000001066000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 194, NULL, NULL, NULL, NULL, NULL),
(34, 5, 'OVNoteImage', 'AC8DCF35-8373-4A4E-93CA-C9C82F64FDB3', 'picture 17 ä.png', 'png', 5017173, 0, NULL, NULL, 1700000001067000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 202, NULL, 12, 0, 272, 153),
(35, 1, 'OVNoteGenericFile', '6FE15C69-61BD-4A6F-96DB-32E5707EDE88', 'paper''s "17".pdf', 'pdf', 17, 1, NULL, NULL, 1700000001068000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 202, NULL, NULL, NULL, NULL, NULL),
(36, 2, 'OVNoteImage', '710EDF37-1817-4A43-AED3-63C5467ABCDA', 'picture 18 ä.png', 'png', 5955472, 0, NULL, NULL, 1700000001069000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 209, NULL, NULL, 0, 288, 162),
(37, 3, 'OVNoteGenericFile', '0F65F7FA-72F7-414D-BBF1-C276F9DC8B17', 'paper''s "18".pdf', 'pdf', 18, 0, NULL, NULL, 1700000001070000, NULL, 2, 0, 0, NULL, 1, 1700000001072000, 0, 0, 0, NULL, NULL, 209, NULL, 13, NULL, NULL, NULL),
(38, 4, 'OVNoteImage', '35B2FD0A-518A-48E2-A7DB-BBC87B108939', 'picture 19 ä.png', 'png', 7004039, 0, NULL, NULL, 1700000001073000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 217, NULL, NULL, 0, 304, 171),
(39, 5, 'OVNoteImage', 'BEDC3240-84FC-4F8C-91B7-B20427A1EAE8', 'picture 20 ä.png', 'png', 8169000, 0, NULL, NULL, 1700000001074000, NULL, 2, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 225, NULL, NULL, 1, 320, 180),
(41, 2, 'OVNoteGenericFile', 'E5817092-E418-4FC7-9EB8-BCD3211DC470', 'paper''s "20".pdf', 'pdf', 20, 1, NULL, NULL, 1700000001075000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 225, NULL, 14, NULL, NULL, NULL),
(42, 3, 'OVNoteImage', '233CFC50-3C53-4B02-B543-97F69E3E92E1', 'picture 21 ä.png', 'png', 9456481, 0, NULL, NULL, 1700000001076000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 233, NULL, NULL, 0, 336, 189),
(43, 4, 'OVNoteGenericFile', '2D91F764-06EB-41C1-AAFC-5EC77FC66212', 'paper''s "21".pdf', 'pdf', 21, 1, NULL, NULL, 1700000001077000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 1, 0, NULL, NULL, 233, NULL, NULL, NULL, NULL, NULL),
(44, 5, 'OVNoteImage', '04063BAD-1F25-4E80-84D6-0434E1DC7251', 'picture 22 ä.png', 'png', 10872608, 0, NULL, NULL, 1700000001078000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 241, NULL, 15, 0, 352, 198),
(45, 1, 'OVNoteGenericFile', '76ECF2AF-F1BB-4165-8139-A5999C9D8AEE', 'paper''s "22".pdf', 'pdf', 22, 0, NULL, NULL, 1700000001079000, NULL, 2, 0, 0, NULL, 1, 1700000001080000, 0, 0, 0, NULL, NULL, 241, NULL, NULL, NULL, NULL, NULL),
(46, 2, 'OVNoteImage', '1D6437CB-7125-4843-8C4E-A4252A8C0CB9', 'picture 23 ä.png', 'png', 12423507, 0, NULL, NULL, 1700000001081000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 248, NULL, NULL, 0, 368, 207),
(47, 3, 'OVNoteImage', '9CBA9240-479C-42A1-8724-62CC128C2221', 'picture 24 ä.png', 'png', 14115304, 0, NULL, NULL, 1700000001082000, NULL, 2, 1, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 256, NULL, 16, 0, 384, 216),
(48, 4, 'OVNoteGenericFile', '151F3EF1-6499-4F75-B765-CABF8E761530', 'paper''s "24".pdf', 'pdf', 24, 1, NULL, NULL, 1700000001083000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 256, NULL, NULL, NULL, NULL, NULL),
(49, 5, 'OVNoteImage', 'F4ADC119-B904-45C4-B2C7-C38CA707AB13', 'picture 25 ä.png', 'png', 15954125, 0, NULL, NULL, 1700000001084000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 264, NULL, NULL, 1, 400, 225),
(51, 2, 'OVNoteGenericFile', 'AEDEAD24-9310-4638-A2A6-91CCA3963A1B', 'paper''s "25".pdf', 'pdf', 25, 1, NULL, NULL, 1700000001085000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 264, NULL, 17, NULL, NULL, NULL),
(52, 3, 'OVNoteImage', '90364E5B-B7D1-4913-8F86-16E697CBC905', NULL, NULL, 0, 0, NULL, NULL, 1700000001086000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 1, 1435881600123456, '55326FC1-6A67-42F3-9508-C8BC75CA95B3', 272, 1, NULL, 0, 416, 234),
(53, 4, 'OVNoteGenericFile', 'AF702D08-1A7A-4CA6-945D-50CDBF551630', NULL, NULL, 0, 0, NULL, NULL, 1700000001087000, NULL, 2, 0, 0, NULL, 1, 1700000001088000, 0, 0, 1, 1435881600123456, 'DAA12CA0-974E-4340-B9AC-121F729E600D', 272, 1, NULL, NULL, NULL, NULL),
(54, 5, 'OVNoteImage', '4AFAB7E2-4C7F-48FC-8FA6-8D5D7369D2B6', 'picture 27 ä.png', 'png', 20097343, 0, NULL, NULL, 1700000001089000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 279, NULL, 18, 0, 432, 243),
(55, 1, 'OVNoteImage', '8F59B551-9BC2-4C7C-8C9D-A0DF0AC8E244', 'picture 28 ä.png', 'png', 22413992, 0, NULL, NULL, 1700000001090000, NULL, 2, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 287, NULL, NULL, 0, 448, 252),
(56, 2, 'OVNoteGenericFile', 'AC76B4A5-BC7A-46DC-96CF-5EC0B7888CC3', 'paper''s "28".pdf', 'pdf', 28, 1, NULL, NULL, 1700000001091000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 1, 0, NULL, NULL, 287, NULL, NULL, NULL, NULL, NULL),
(57, 3, 'OVNoteImage', 'EF7102C7-B473-48E6-97BE-DBA8A28F2AE5', 'picture 29 ä.png', 'png', 24902169, 0, NULL, NULL, 1700000001092000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 295, NULL, 19, 0, 464, 261),
(58, 4, 'OVNoteGenericFile', 'A2DB3026-FA77-4FFD-A9F5-D124EC57BDFD', 'paper''s "29".pdf', 'pdf', 29, 1, NULL, NULL, 1700000001093000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 295, NULL, NULL, NULL, NULL, NULL),
(59, 5, 'OVNoteImage', '38C7DB98-EDA0-4711-98ED-55D0C04CA0AE', 'picture 30 ä.png', 'png', 27568000, 0, NULL, NULL, 1700000001094000, NULL, 2, 1, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 303, NULL, NULL, 1, 480, 270),
(61, 2, 'OVNoteGenericFile', '288A7A9F-AEC0-4C7C-ABCD-6841A7472E8D', 'paper''s "30".pdf', 'pdf', 30, 0, NULL, NULL, 1700000001095000, NULL, 2, 0, 0, NULL, 1, 1700000001096000, 0, 0, 0, NULL, NULL, 303, NULL, 21, NULL, NULL, NULL),
(62, 3, 'OVNoteImage', 'B230117D-6640-48A1-8C33-05DAE46BFEB3', 'picture 31 ä.png', 'png', 30417611, 0, NULL, NULL, 1700000001097000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 311, NULL, NULL, 0, 496, 279),
(63, 4, 'OVNoteImage', 'E77A3234-3DB9-4B17-AA6C-3F9B0BE49495', 'picture 32 ä.png', 'png', 33457128, 0, NULL, NULL, 1700000001098000, NULL, 2, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 318, NULL, NULL, 0, 512, 288),
(64, 5, 'OVNoteGenericFile', '5F0A5739-55AA-474F-A61C-C25C90610431', 'paper''s "32".pdf', 'pdf', 32, 1, NULL, NULL, 1700000001099000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 318, NULL, 22, NULL, NULL, NULL),
(65, 1, 'OVNoteImage', '40FC747E-1F88-4AD1-B92B-BDA25FCB73FB', 'picture 33 ä.png', 'png', 36692677, 0, NULL, NULL, 1700000001100000, NULL, 2, 1, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 326, NULL, NULL, 0, 528, 297),
(66, 2, 'OVNoteGenericFile', '08D2EBE9-AC7C-47BA-B771-7050F31F7C69', 'paper''s "33".pdf', 'pdf', 33, 1, NULL, NULL, 1700000001101000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 326, NULL, NULL, NULL, NULL, NULL),
(67, 3, 'OVNoteImage', 'FE8FB2B0-BB28-4227-A970-73B2A59CAE80', 'picture 34 ä.png', 'png', 40130384, 0, NULL, NULL, 1700000001103000, NULL, 2, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 334, NULL, 23, 0, 544, 306),
(68, 4, 'OVNoteGenericFile', 'DCC23D89-C458-4701-BDF8-6DEF3F80DA70', 'paper''s "34".pdf', 'pdf', 34, 0, NULL, NULL, 1700000001104000, NULL, 1, 0, 0, NULL, 1, 1700000001105000, 0, 0, 0, NULL, NULL, 334, NULL, NULL, NULL, NULL, NULL),
(69, 5, 'OVNoteImage', '53649245-0D9F-4482-88DB-EEFCAB7930C9', 'picture 35 ä.png', 'png', 43776375, 0, NULL, NULL, 1700000001106000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 342, NULL, NULL, 1, 560, 315),
(71, 2, 'OVNoteImage', '05B4C226-F3DE-4FDF-8494-2779B0763893', 'picture 36 ä.png', 'png', 47636776, 0, NULL, NULL, 1700000001107000, NULL, 2, 1, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 349, NULL, 24, 0, 576, 324),
(72, 3, 'OVNoteGenericFile', '9E10F92C-FBBE-4D85-9BDA-6556596A270E', 'paper''s "36".pdf', 'pdf', 36, 1, NULL, NULL, 1700000001108000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 349, NULL, NULL, NULL, NULL, NULL),
(73, 4, 'OVNoteImage', 'E8E7C6F8-56FA-4EA0-AC42-BB353302D191', 'picture 37 ä.png', 'png', 51717713, 0, NULL, NULL, 1700000001109000, NULL, 2, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 357, NULL, NULL, 0, 592, 333),
(74, 5, 'OVNoteGenericFile', '4F156981-A7BC-4A29-967D-F6E9DC12C137', 'paper''s "37".pdf', 'pdf', 37, 1, NULL, NULL, 1700000001110000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 357, NULL, 25, NULL, NULL, NULL),
(75, 1, 'OVNoteImage', 'D1CB2EB4-2A6D-45D7-962E-DAD8C7619E4A', 'picture 38 ä.png', 'png', 56025312, 0, NULL, NULL, 1700000001112000, NULL, 2, 0, 1, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 365, NULL, NULL, 0, 608, 342),
(76, 2, 'OVNoteGenericFile', '69D792B3-BF20-460F-A418-8C13A0952BCA', 'paper''s "38".pdf', 'pdf', 38, 0, NULL, NULL, 1700000001113000, NULL, 1, 0, 0, NULL, 1, 1700000001114000, 0, 0, 0, NULL, NULL, 365, NULL, NULL, NULL, NULL, NULL),
(77, 3, 'OVNoteImage', 'D7846896-29DC-459D-953F-8F2CBB5D1D9E', 'picture 39 ä.png', 'png', 60565699, 0, NULL, NULL, 1700000001115000, NULL, 2, 1, 0, NULL, 0, NULL, 0, 0, 0, NULL, NULL, 373, NULL, 26, 0, 624, 351);
INSERT INTO "OVNoteFile_large" ("pk", "encryptedData") VALUES
(1, NULL),
(2, NULL),
(3, NULL),
(4, NULL),
(5, NULL),
(6, NULL),
(7, NULL),
(8, NULL),
(9, NULL),
(11, NULL),
(12, NULL),
(13, NULL),
(14, NULL),
(15, NULL),
(16, NULL),
(17, NULL),
(18, NULL),
(19, NULL),
(21, X'6E616D652C20657874656E73696F6E20616E642073697A65'),
(22, X'6E616D652C20657874656E73696F6E20616E642073697A65'),
(23, NULL),
(24, NULL),
(25, NULL),
(26, NULL),
(27, NULL),
(28, NULL),
(29, NULL),
(31, NULL),
(32, NULL),
(33, NULL),
(34, NULL),
(35, NULL),
(36, NULL),
(37, NULL),
(38, NULL),
(39, NULL),
(41, NULL),
(42, NULL),
(43, NULL),
(44, NULL),
(45, NULL),
(46, NULL),
(47, NULL),
(48, NULL),
(49, NULL),
(51, NULL),
(52, X'6E616D652C20657874656E73696F6E20616E642073697A65'),
(53, X'6E616D652C20657874656E73696F6E20616E642073697A65'),
(54, NULL),
(55, NULL),
(56, NULL),
(57, NULL),
(58, NULL),
(59, NULL),
(61, NULL),
(62, NULL),
(63, NULL),
(64, NULL),
(65, NULL),
(66, NULL),
(67, NULL),
(68, NULL),
(69, NULL),
(71, NULL),
(72, NULL),
(73, NULL),
(74, NULL),
(75, NULL),
(76, NULL),
(77, NULL);
INSERT INTO "OVNoteBackLink" ("pk", "rowVersion", "uniqueIdentifier", "title", "location", "modificationDate", "version", "linkedBy", "linkingTo", "title_folded") VALUES
(1, 2, '3EA8BAF5-5C24-4F4B-AE32-C987B1F95281', 'Groceries', 30, 1700000000013000, 2, 5, 425, 'groceries'),
(2, 3, 'FFCF6FF4-27BE-4501-B32D-9C17A4F551D2', 'Groceries', 53, 1700000000030000, 1, 12, 425, 'groceries'),
(3, 4, 'A7255F30-26E1-477B-819D-68744F87C1FF', 'x|y', 26, 1700000000146000, 2, 61, NULL, 'x|y'),
(4, 5, 'C93C9FFA-15CC-440E-9A8B-6FE18C9B5C8C', 'x', 1998, 1700000000151000, 1, 63, NULL, 'x'),
(5, 1, '38E74E02-53B3-4259-8863-99477EC3FC68', 'Groceries', 4080035, 1700000000158000, 2, 66, 425, 'groceries'),
(6, 2, '73D12986-FA79-4077-A6A9-0D69C184897F', 'Entry 152', 198, 1700000000165000, 1, 69, 238, 'entry 152'),
(7, 3, 'D95B9C04-BB87-49D7-BB9A-394B6F815C3E', 'entry 225', 216, 1700000000166000, 2, 69, 319, NULL),
(8, 4, 'A640B1C5-AC36-45F5-894A-E19EEEB71C12', 'Entry 35', 212, 1700000000178000, 1, 73, 108, 'entry 35'),
(9, 5, 'A095A464-9B63-4FF9-8D22-D50D40BC40A7', 'entry 47', 229, 1700000000179000, 2, 73, 122, 'entry 47'),
(11, 2, '1B13AB7D-13D8-4DD9-A9C3-5C1E34A9AFD5', 'Entry 299', 117, 1700000000182000, 2, 74, 402, 'entry 299'),
(12, 3, 'A3978473-BF8D-4C5B-A1A5-0646A7864B3B', 'entry 37', 135, 1700000000183000, 1, 74, 111, 'entry 37'),
(13, 4, '9E4313B7-5BE6-450C-86A6-EBD58341461C', 'Entry 350', 110, 1700000000194000, 2, 79, NULL, 'entry 350'),
(14, 5, '91184BE6-A8FC-4C07-820A-33AF0FC246A3', 'entry 93', 128, 1700000000195000, 1, 79, 173, NULL),
(15, 1, '0B27E028-79CD-4B83-B5BA-B9F410C26E6F', 'Entry 145', 176, 1700000000210000, 2, 86, 231, 'entry 145'),
(16, 2, '2149B690-3E51-4BBC-A704-3E54125F3001', 'entry 395', 194, 1700000000211000, 1, 86, NULL, 'entry 395'),
(17, 3, '2FDC028D-35DD-494A-B513-DBFF5097786C', 'Entry 239', 202, 1700000000228000, 2, 95, 335, 'entry 239'),
(18, 4, '9680ADA5-B762-48F8-8FC5-062D168267C9', 'entry 180', 220, 1700000000229000, 1, 95, 269, 'entry 180'),
(19, 5, 'EA145A7D-81F9-4571-B205-427C3C259B7E', 'Entry 97', 61, 1700000000240000, 2, 101, 177, 'entry 97'),
(21, 2, '90CBB326-5502-4076-821B-7C2C037A3AA1', 'entry 221', 78, 1700000000241000, 2, 101, 315, NULL),
(22, 3, 'D9F34C2F-10C5-4F3C-A128-D6051AD2E201', 'Entry 206', 130, 1700000000248000, 1, 104, 298, 'entry 206'),
(23, 4, '62786EB2-9A6D-4BA9-8075-B01087CDC8B2', 'entry 79', 148, 1700000000249000, 2, 104, 157, 'entry 79'),
(24, 5, '3929A136-5198-460D-A9D0-F3EBD10FCEBC', 'Entry 341', 160, 1700000000256000, 1, 107, NULL, 'entry 341'),
(25, 1, '920C282B-233A-44C4-9023-694CC869815E', 'entry 333', 178, 1700000000257000, 2, 107, NULL, 'entry 333'),
(26, 2, 'E7DB5C97-F319-4E1E-A799-CF1EFDA2288F', 'Entry 249', 140, 1700000000266000, 1, 112, 346, 'entry 249'),
(27, 3, '2DD146A8-60B0-494B-B21C-F905AC662C59', 'entry 349', 158, 1700000000267000, 2, 112, NULL, 'entry 349'),
(28, 4, 'FBE6F80B-D1FB-435C-80DF-CC6C4BE2CC7E', 'Entry 28', 150, 1700000000276000, 1, 116, 101, NULL),
(29, 5, '4B74888D-0A56-4B94-8412-37D03A13A905', 'entry 315', 167, 1700000000277000, 2, 116, 419, 'entry 315'),
(31, 2, '99F232C0-FA4A-4F4B-94CE-06CB87114D63', 'Entry 281', 243, 1700000000290000, 2, 123, 382, 'entry 281'),
(32, 3, 'E8EDD676-EF1D-4491-A4E2-7EAE191C0877', 'entry 265', 261, 1700000000291000, 1, 123, 364, 'entry 265'),
(33, 4, 'E4A5D5AD-3924-4778-9F98-A735D3D43447', 'Entry 252', 117, 1700000000316000, 2, 136, 349, 'entry 252'),
(34, 5, '9C3B3160-72ED-4375-B04B-C0B51F979236', 'entry 127', 135, 1700000000317000, 1, 136, 211, 'entry 127'),
(35, 1, '3A3BCE6E-F74E-4258-8C61-BBD990BC646C', 'Entry 278', 203, 1700000000346000, 2, 152, 378, NULL),
(36, 2, 'FB943767-2E53-4946-857F-FDF731EF417D', 'entry 308', 221, 1700000000347000, 1, 152, 412, 'entry 308'),
(37, 3, '9D3246ED-82D6-41C4-B3FC-7EEBAA9B6344', 'Entry 64', 191, 1700000000352000, 2, 154, 141, 'entry 64'),
(38, 4, '10963829-1F47-40E8-8B5E-28D62B2F2E99', 'entry 112', 208, 1700000000353000, 1, 154, 194, 'entry 112'),
(39, 5, 'DE7E4521-AEF3-4486-9EC3-C88E423DC291', 'Entry 123', 206, 1700000000370000, 2, 163, 206, 'entry 123'),
(41, 2, '1CAE2DDF-D00E-45F6-BFC7-BC4A3300B200', 'entry 212', 224, 1700000000371000, 2, 163, 305, 'entry 212'),
(42, 3, 'BDC50341-E84D-42F0-8CA1-D5C38A0EE2E3', 'Entry 346', 169, 1700000000380000, 1, 167, NULL, NULL),
(43, 4, '5CF4C132-84AD-4681-92D6-B4EBB47D2376', 'entry 379', 187, 1700000000381000, 2, 167, NULL, 'entry 379'),
(44, 5, 'F7037419-C793-4162-91DE-B7AF869B6C96', 'Entry 343', 157, 1700000000394000, 1, 174, NULL, 'entry 343'),
(45, 1, 'EC890661-DC7A-419A-AABA-619090116682', 'entry 230', 175, 1700000000395000, 2, 174, 325, 'entry 230'),
(46, 2, 'D3C4414A-D216-40B4-A882-E11B828676CB', 'Entry 178', 140, 1700000000398000, 1, 175, 267, 'entry 178'),
(47, 3, 'DE499166-62C6-4472-88B3-C1D96F1F53B8', 'entry 297', 158, 1700000000399000, 2, 175, 399, 'entry 297'),
(48, 4, '49BDF152-E94B-4865-91FD-9D76D1302BC9', 'Entry 11', 67, 1700000000408000, 1, 179, 82, 'entry 11'),
(49, 5, '9CB6E2DB-836D-4582-B2A4-49B95ED8679B', 'entry 115', 84, 1700000000409000, 2, 179, 197, NULL),
(51, 2, '03FB4914-013C-4699-83D8-609F045F5A46', 'Entry 213', 192, 1700000000418000, 2, 184, 306, 'entry 213'),
(52, 3, 'ADCE512A-9302-40EB-89FC-D3C25D4AFB71', 'entry 293', 210, 1700000000419000, 1, 184, 395, 'entry 293'),
(53, 4, '3C3E3D36-9EED-47C1-A614-43CCB64919E3', 'Entry 194', 74, 1700000000424000, 2, 186, 285, 'entry 194'),
(54, 5, '3332007E-41CA-4AE0-864F-21DDFDD2E480', 'entry 183', 92, 1700000000425000, 1, 186, 273, 'entry 183'),
(55, 1, '1F399D70-06FD-437D-B05E-18CFFF68E66F', 'Entry 192', 107, 1700000000432000, 2, 189, 283, 'entry 192'),
(56, 2, 'D3B37BA4-7FCE-4A3B-BC10-06CBB65EB999', 'entry 41', 125, 1700000000433000, 1, 189, 115, NULL),
(57, 3, '3F140CF6-2A70-4B6C-BEF9-D8DD5CE56DFD', 'Entry 76', 155, 1700000000446000, 2, 196, 154, 'entry 76'),
(58, 4, 'B88DF0BE-4764-4E36-9622-FFAC2DD41222', 'entry 165', 172, 1700000000447000, 1, 196, 253, 'entry 165'),
(59, 5, '7A61815D-216A-42EE-90CD-240E800E134F', 'Entry 166', 76, 1700000000450000, 2, 197, 254, 'entry 166'),
(61, 2, 'A1AD0BA0-87CC-4B92-B355-FF8AF2B87DAE', 'entry 24', 94, 1700000000451000, 2, 197, 96, 'entry 24'),
(62, 3, '76A5EA57-2F85-4AF1-A98A-F569853D016C', 'Entry 317', 95, 1700000000456000, 1, 199, 422, 'entry 317'),
(63, 4, 'C0258852-78BC-41B7-A824-030DE516BD75', 'entry 232', 113, 1700000000457000, 2, 199, 327, NULL),
(64, 5, 'A60955F5-7561-4217-BD62-217D9B1A45DC', 'Entry 156', 108, 1700000000462000, 1, 202, 243, 'entry 156'),
(65, 1, '3C92927F-3BCB-44A7-8E29-0B7FB816B219', 'entry 232', 126, 1700000000463000, 2, 202, 327, 'entry 232'),
(66, 2, '82DA3911-E6E4-4A04-9624-30753317960F', 'Entry 46', 136, 1700000000468000, 1, 204, 121, 'entry 46'),
(67, 3, 'A83F4D0F-8146-4CFB-8E79-7072EBA6AA34', 'entry 168', 153, 1700000000469000, 2, 204, 256, 'entry 168'),
(68, 4, '96DDFA40-136B-42C0-8C5C-C1E54C7667D1', 'Entry 338', 219, 1700000000476000, 1, 207, NULL, 'entry 338'),
(69, 5, 'DE7BF9A8-4C06-40FA-8054-29C864D31626', 'entry 224', 237, 1700000000477000, 2, 207, 318, 'entry 224'),
(71, 2, '0E528D82-CEDF-4315-93A1-DBF23A31F97B', 'Entry 105', 198, 1700000000482000, 2, 209, 186, 'entry 105'),
(72, 3, 'A32085BF-CD5A-4086-A9CC-5B4B70019D0C', 'Entry 63', 248, 1700000000486000, 1, 211, 139, 'entry 63'),
(73, 4, '42505F4D-B62B-47C7-8B11-D14A54AF8D5A', 'entry 307', 265, 1700000000487000, 2, 211, 411, 'entry 307'),
(74, 5, '08527519-1956-4BB0-B3F3-1CDE1800B8E5', 'Entry 287', 53, 1700000000490000, 1, 212, 388, 'entry 287'),
(75, 1, 'F53CE739-337B-4AB9-9DB1-524D549697A9', 'entry 67', 71, 1700000000491000, 2, 212, 144, 'entry 67'),
(76, 2, '59B4C547-A448-4114-BCB9-26325E9D6DF5', 'Entry 212', 197, 1700000000494000, 1, 213, 305, 'entry 212'),
(77, 3, '677F9849-BFBB-4A31-A3CF-6844F40E6775', 'entry 183', 215, 1700000000495000, 2, 213, 273, NULL),
(78, 4, '9B1614CC-BDD8-427B-B9B8-4ED832564BF7', 'Entry 165', 141, 1700000000498000, 1, 214, 253, 'entry 165'),
(79, 5, '90D80854-577E-4B09-A1A9-16B7FC749ED1', 'entry 74', 159, 1700000000499000, 2, 214, 152, 'entry 74'),
(81, 2, 'F8E91339-74D1-40FA-ADF7-38BE9F43A856', 'Entry 33', 157, 1700000000506000, 2, 217, 106, 'entry 33'),
(82, 3, '0F06EBC7-6E3B-4D0E-98F8-4645D4D1B497', 'entry 142', 174, 1700000000507000, 1, 217, 227, 'entry 142'),
(83, 4, '6BF0D8D3-7266-4968-8BF0-1C6F508E1C40', 'Entry 14', 106, 1700000000520000, 2, 224, 85, 'entry 14'),
(84, 5, 'F7070C3E-BA44-4C93-9AB2-9C1A31F53837', 'entry 53', 123, 1700000000521000, 1, 224, 128, NULL),
(85, 1, 'CC4D4A96-C910-451D-BE59-95F5C9B608AE', 'Entry 308', 81, 1700000000534000, 2, 231, 412, 'entry 308'),
(86, 2, 'D1F81CEB-490C-4274-ABE2-8890CFBE53B9', 'entry 104', 99, 1700000000535000, 1, 231, 185, 'entry 104'),
(87, 3, 'BDF2BD38-078E-4E5E-88E7-4C15A561C71C', 'Entry 5', 180, 1700000000542000, 2, 234, 75, 'entry 5'),
(88, 4, '4ECA6770-5182-482C-BB5B-118011F0CC81', 'entry 334', 196, 1700000000543000, 1, 234, NULL, 'entry 334'),
(89, 5, 'AFAFE5C2-7F88-471C-8FDA-BDED50113173', 'Entry 117', 143, 1700000000560000, 2, 243, 199, 'entry 117'),
(91, 2, '8028160D-12A7-42F8-BE5E-FD157890891D', 'entry 372', 161, 1700000000561000, 2, 243, NULL, NULL),
(92, 3, '5A4552B1-E5D8-48C2-8EA8-EECD9140255D', 'Entry 115', 207, 1700000000586000, 1, 256, 197, 'entry 115'),
(93, 4, '050F3243-9E8F-4A86-B4BD-C7529A9CD393', 'entry 137', 225, 1700000000587000, 2, 256, 222, 'entry 137'),
(94, 5, '462FB509-FEDD-455D-A7BA-DA05D72959D2', 'Entry 44', 191, 1700000000596000, 1, 261, 118, 'entry 44'),
(95, 1, 'A66044A7-C204-40A8-A127-2BA3EAC14236', 'entry 128', 208, 1700000000597000, 2, 261, 212, 'entry 128'),
(96, 2, '0377FEEA-EC92-4EA6-8A6F-D2327290AD6C', 'Entry 104', 108, 1700000000622000, 1, 274, 185, 'entry 104'),
(97, 3, '90FA1E50-1FF3-4277-A63C-73A5B40E6AA1', 'entry 31', 126, 1700000000623000, 2, 274, 104, 'entry 31'),
(98, 4, 'FF277F90-69C9-46CC-B664-E992F62D3F7A', 'Entry 194', 104, 1700000000628000, 1, 276, 285, NULL),
(99, 5, '371EE5B5-600A-45DA-AAC6-03CB9888B5A6', 'entry 38', 122, 1700000000629000, 2, 276, 112, 'entry 38'),
(101, 2, '4A20F03C-5D8A-4304-AE30-462EDEF77E31', 'Entry 388', 138, 1700000000638000, 2, 281, NULL, 'entry 388'),
(102, 3, '10EE6B37-21E6-4E87-B875-05C079E22448', 'entry 335', 156, 1700000000639000, 1, 281, NULL, 'entry 335'),
(103, 4, 'FDB2029D-1333-406A-9910-27D99AE37FDE', 'Entry 194', 173, 1700000000648000, 2, 285, 285, 'entry 194'),
(104, 5, 'EE6C685D-F0A8-4FBE-9DB4-603EDA2DCB5F', 'entry 134', 191, 1700000000649000, 1, 285, 218, 'entry 134'),
(105, 1, '7F842853-CB57-41DC-9D48-FFB0E4E846BD', 'Entry 228', 209, 1700000000652000, 2, 286, 323, NULL),
(106, 2, 'CB4530D2-194F-498D-8289-A6A7C6058FFD', 'entry 210', 227, 1700000000653000, 1, 286, 303, 'entry 210'),
(107, 3, '4B3B1802-DC12-4FD4-83BC-579F244C2EB1', 'Entry 242', 114, 1700000000666000, 2, 293, 338, 'entry 242'),
(108, 4, '47D42C4C-DD1B-4689-BED7-6CAE15C54BAB', 'entry 318', 132, 1700000000667000, 1, 293, 423, 'entry 318'),
(109, 5, '839F5AD6-73A6-4930-AC07-9F3BE54DB2E7', 'Entry 142', 75, 1700000000674000, 2, 296, 227, 'entry 142'),
(111, 2, 'BC45396A-2C6E-458B-AC97-9F7DE9E42268', 'entry 84', 93, 1700000000675000, 2, 296, 163, 'entry 84'),
(112, 3, '34FCCE07-D780-4734-8A1C-5EF5D5DA922F', 'Entry 40', 167, 1700000000678000, 1, 297, 114, NULL),
(113, 4, '1B896F7B-EF5D-468F-A374-A3096A4769B5', 'entry 13', 184, 1700000000679000, 2, 297, 84, 'entry 13'),
(114, 5, 'C7F31301-98C4-41D1-BB64-D33C0F0E4359', 'Entry 391', 180, 1700000000696000, 1, 306, NULL, 'entry 391'),
(115, 1, '904B515C-FFD3-41D0-80F5-F1784772FEAD', 'entry 93', 198, 1700000000697000, 2, 306, 173, 'entry 93'),
(116, 2, 'E3379362-36BE-4D7A-BD59-27ACAD62B0B8', 'Entry 111', 60, 1700000000708000, 1, 312, 193, 'entry 111'),
(117, 3, '7B807E1B-663F-49C4-931E-4D49598769F1', 'entry 271', 78, 1700000000709000, 2, 312, 371, 'entry 271'),
(118, 4, 'A949ECFA-366A-4EF6-9800-217AE5A3175D', 'Entry 245', 237, 1700000000712000, 1, 313, 342, 'entry 245'),
(119, 5, '5D5F1972-0C3B-4703-845A-CE57C5BB1E4A', 'entry 395', 255, 1700000000713000, 2, 313, NULL, NULL),
(121, 2, 'F3BCF65A-92EC-4EB0-BC89-0A0F02295F03', 'Entry 369', 266, 1700000000726000, 2, 319, NULL, 'entry 369'),
(122, 3, '0C75A617-5F02-443D-B9FA-4AC422ACA21A', 'entry 363', 284, 1700000000727000, 1, 319, NULL, 'entry 363'),
(123, 4, 'B528D2B0-5DB8-4EA3-81C9-A12DB22E26A8', 'Entry 240', 84, 1700000000740000, 2, 326, 336, 'entry 240'),
(124, 5, 'B91B1271-EF35-413F-B685-2FC232B1CA11', 'Entry 161', 190, 1700000000748000, 1, 329, 248, 'entry 161'),
(125, 1, 'EFC65013-9E18-49A2-A78D-BF987DE3F5C6', 'entry 365', 208, 1700000000749000, 2, 329, NULL, 'entry 365'),
(126, 2, 'B2125B9F-5DD3-4682-BA35-B1B15D47451B', 'Entry 10', 77, 1700000000754000, 1, 332, 81, NULL),
(127, 3, '62F80E05-F343-4383-9E5B-E2CC76CA2559', 'entry 392', 94, 1700000000755000, 2, 332, NULL, 'entry 392'),
(128, 4, '392F4C7D-79BA-47CD-A2EA-24E72826E696', 'Entry 245', 150, 1700000000762000, 1, 335, 342, 'entry 245'),
(129, 5, 'A5351586-22EF-4701-AAE3-92773F1AD13E', 'entry 356', 168, 1700000000763000, 2, 335, NULL, 'entry 356'),
(131, 2, 'DE54B337-BD63-4456-99C3-B2259D964D5E', 'Entry 371', 206, 1700000000778000, 2, 343, NULL, 'entry 371'),
(132, 3, 'AC7616A8-7AC8-4D27-BF03-629DA24DA724', 'entry 13', 224, 1700000000779000, 1, 343, 84, 'entry 13'),
(133, 4, '70C816CC-C176-4920-B9B0-B7277E5A376D', 'Entry 174', 254, 1700000000792000, 2, 349, 263, NULL),
(134, 5, 'D10FC694-3E73-44ED-9780-F974AA6F8E99', 'entry 242', 272, 1700000000793000, 1, 349, 338, 'entry 242'),
(135, 1, '7D8EB1A5-B1BE-4D6B-A767-C5BCCB34406E', 'Entry 333', 119, 1700000000798000, 2, 352, NULL, 'entry 333'),
(136, 2, 'ED1D6812-3A8D-4161-BC8C-9D5A8B8A9AE1', 'entry 141', 137, 1700000000799000, 1, 352, 226, 'entry 141'),
(137, 3, '144E5568-51D0-4E5A-A024-DA636830C848', 'Entry 339', 220, 1700000000804000, 2, 354, NULL, 'entry 339'),
(138, 4, '16FF0942-F09F-4622-9160-93ED079608D5', 'entry 250', 238, 1700000000805000, 1, 354, 347, 'entry 250'),
(139, 5, 'F52B0D09-B5A9-4FD9-8B5E-D055A31EEDAD', 'entry 218', 58, 1700000000813000, 2, 357, 312, 'entry 218'),
(141, 2, '5E3F18BC-F197-490B-A262-8E319E328B7A', 'Entry 162', 178, 1700000000816000, 2, 358, 249, 'entry 162'),
(142, 3, 'B3DC9026-2756-43B2-ABA2-22D33149CAFD', 'entry 81', 196, 1700000000817000, 1, 358, 159, 'entry 81'),
(143, 4, 'D4899293-9B1E-459A-AFAA-093C3FD7F850', 'Entry 180', 145, 1700000000828000, 2, 364, 269, 'entry 180'),
(144, 5, 'A818C421-EAEC-4B35-9686-CB4B6045DE33', 'entry 330', 163, 1700000000829000, 1, 364, NULL, 'entry 330'),
(145, 1, 'BFA1CDC0-AC03-4494-BF2C-E3B2E2DA4A59', 'Entry 283', 148, 1700000000832000, 2, 365, 384, 'entry 283'),
(146, 2, '0D0DFA13-0E54-4BDF-B831-0D75B9E7A435', 'entry 74', 166, 1700000000833000, 1, 365, 152, 'entry 74'),
(147, 3, '1624513C-AE2A-4971-9BFA-4E6C3B801B14', 'Entry 348', 139, 1700000000842000, 2, 369, NULL, NULL),
(148, 4, '6EE9EF9F-40FC-4960-9576-6C524E8865E6', 'entry 376', 157, 1700000000843000, 1, 369, NULL, 'entry 376'),
(149, 5, 'A90DB4E0-B86D-4184-82A2-2BF6BC00C002', 'Entry 288', 179, 1700000000846000, 2, 371, 389, 'entry 288'),
(151, 2, 'E8FC5000-87BD-46D3-932D-0B869EF7A651', 'entry 148', 197, 1700000000847000, 2, 371, 234, 'entry 148'),
(152, 3, '75406976-869B-4085-B6B6-E7AA99978EE6', 'Entry 0', 49, 1700000000852000, 1, 373, 69, 'entry 0'),
(153, 4, 'A01F8B36-D382-47D7-9F99-62248A05807D', 'entry 221', 65, 1700000000853000, 2, 373, 315, 'entry 221'),
(154, 5, '0E33FD6A-FFD8-46D8-AC60-5AB1BD06DB5D', 'Entry 385', 216, 1700000000856000, 1, 374, NULL, NULL),
(155, 1, '4C950697-C512-46B6-BA75-2BC1BCA4630C', 'entry 88', 234, 1700000000857000, 2, 374, 167, 'entry 88'),
(156, 2, '712D7FCB-B33A-4CFC-B2E8-29ED35E71BCF', 'Entry 88', 201, 1700000000862000, 1, 376, 167, 'entry 88'),
(157, 3, '37DDBC8D-9EAA-4424-B5EB-E0CAEBE05499', 'entry 339', 218, 1700000000863000, 2, 376, NULL, 'entry 339'),
(158, 4, '1C616B9E-1178-426C-BC9E-15517FC377A7', 'Entry 329', 205, 1700000000880000, 1, 385, NULL, 'entry 329'),
(159, 5, '39702B6E-125E-47DD-B486-7852A1443733', 'entry 55', 223, 1700000000881000, 2, 385, 131, 'entry 55'),
(161, 2, 'AE87AC2F-8B3A-4445-8EFF-B8AD60D059E0', 'Entry 85', 76, 1700000000884000, 2, 386, 164, NULL),
(162, 3, '4A3F2CA5-527D-44C0-B548-8B899B09C3BA', 'entry 18', 93, 1700000000885000, 1, 386, 89, 'entry 18'),
(163, 4, '252E40EB-80AD-4F86-9B6F-EC6EFBA0DAC8', 'Entry 375', 45, 1700000000906000, 2, 397, NULL, 'entry 375'),
(164, 5, '064D41F2-DCEC-459C-BFC0-D4859F9C0702', 'entry 65', 63, 1700000000907000, 1, 397, 142, 'entry 65'),
(165, 1, '43410047-C665-48DA-800C-1D9AAAD7917D', 'Entry 94', 175, 1700000000910000, 2, 398, 174, 'entry 94'),
(166, 2, 'F13A32A3-9089-4886-8AA6-B1B2891947D6', 'entry 271', 192, 1700000000911000, 1, 398, 371, 'entry 271'),
(167, 3, '24CB38F8-0D43-4D5E-9358-C0F9E592E5F0', 'Entry 62', 117, 1700000000920000, 2, 403, 138, 'entry 62'),
(168, 4, '43E569E2-25E9-49D2-9168-1CE8FEA0163E', 'entry 357', 134, 1700000000921000, 1, 403, NULL, NULL),
(169, 5, '363100F2-6B4F-4BB5-A8C8-E3016601FB98', 'Entry 222', 243, 1700000000938000, 2, 412, 316, 'entry 222'),
(171, 2, 'EB588A7E-4F62-4317-B0C3-71871B31AE05', 'entry 193', 261, 1700000000939000, 2, 412, 284, 'entry 193'),
(172, 3, '7F9FBD0B-8254-4DC6-84EB-F73FCE24EBCE', 'Entry 358', 71, 1700000000942000, 1, 413, NULL, 'entry 358'),
(173, 4, 'B24D2D86-CE31-4F67-8979-EAC8C4BFF286', 'entry 187', 89, 1700000000943000, 2, 413, 277, 'entry 187'),
(174, 5, '3FB98617-A321-4413-83A1-D42B44898902', 'Entry 218', 107, 1700000000952000, 1, 417, 312, 'entry 218'),
(175, 1, 'CC3DB972-6C78-4193-BA8A-DDDFF3B041F7', 'entry 178', 125, 1700000000953000, 2, 417, 267, NULL),
(176, 2, '38C84945-A859-4345-AD75-DC1C22C90145', 'Groceries', 22, 1700000000968000, 1, 425, 425, 'groceries'),
(177, 3, '5AB64B94-8CC3-40B7-9BC9-D0A253EF6DE1', '9D5843A9-0C7D-4536-AB8D-93D94D3CF00A', 17, 1700000000981000, 2, 432, 429, '9d5843a9-0c7d-4536-ab8d-93d94d3cf00a'),
(178, 4, '772F73E4-46C3-44E8-821C-C2F6F7D2F2B3', 'CEA9DD77-7629-4F99-A5EF-8D0C116044CB', 62, 1700000000982000, 1, 432, 431, 'cea9dd77-7629-4f99-a5ef-8d0c116044cb'),
(179, 5, 'C77E7E79-FC63-42F9-A871-EFDCE2C807ED', 'Groceries', 12, 1700000000985000, 2, 433, 425, 'groceries'),
(181, 2, '36832551-007D-4DE4-9785-641DA957DB64', 'groceries', 26, 1700000000986000, 2, 433, 425, 'groceries'),
(182, 3, 'B90C8597-8BE9-40DD-8E37-0FD4F8315963', 'GROCERIES', 49, 1700000000987000, 1, 433, 425, NULL),
(183, 4, 'A0D8AA18-2CDD-417F-82DB-69AA24FF7461', 'AC/DC', 63, 1700000000988000, 2, 433, 426, 'ac/dc'),
(184, 5, '5EA96AE1-DD95-4879-A6EB-955BEB5071AF', 'x|y [z]', 73, 1700000000989000, 1, 433, 427, 'x|y [z]'),
(185, 1, '753C28A1-6D55-4407-97F3-0F88E2DD2F8D', 'eclair', 89, 1700000000990000, 2, 433, 428, 'eclair'),
(186, 2, '3EE64DD8-3D7D-466D-91AD-E2826AB21ED8', 'ÉCLAIR', 100, 1700000000991000, 1, 433, 428, 'eclair'),
(187, 3, '50C7B3FD-8F8A-4352-BCA9-20A0CFC0D5F8', 'nobody has this title', 112, 1700000000992000, 2, 433, NULL, 'nobody has this title'),
(188, 4, '0EEF2C0B-BECB-4DA0-B303-D0B8CA80208D', 'Groceries', 218, 1700000000993000, 1, 433, 425, 'groceries'),
(189, 5, 'F4F2B406-DBF6-4B9A-8657-DFDB9ACDC718', '́', 236, 1700000000994000, 2, 433, NULL, NULL),
(191, 2, '38787E77-83E8-4D30-8F4F-881A9BDD2EB8', 'Groceries', 5, 1700000000997000, 2, 434, 425, 'groceries'),
(192, 3, '4B6E9AFE-AB05-4C88-B1F1-E2B27CEE683B', 'Chain two', 13, 1700000001000000, 1, 435, 436, 'chain two'),
(193, 4, '961A0EE1-5D1D-46B0-A741-D62380B06DB0', 'Chain three', 13, 1700000001003000, 2, 436, NULL, 'chain three'),
(194, 5, 'C7FA3D89-E2EB-4915-AA94-D241B3CABF0D', 'Chain one', 29, 1700000001004000, 1, 436, 435, 'chain one'),
(195, 1, '669DD5F9-6A82-4D3A-A4A7-D6101C740E73', 'Twin', 12, 1700000001024000, 2, 445, 439, 'twin'),
(196, 2, 'FEA43474-9F3F-477D-8C9E-148E5521C968', 'thrown away', 21, 1700000001025000, 1, 445, 442, NULL),
(197, 3, '9D83B176-F796-4913-9C41-FB074DDBA7EF', 'Same moment', 37, 1700000001026000, 2, 445, 443, 'same moment'),
(198, 4, '79192899-9053-40DC-A6B7-3403716BBA09', 'Dateless', 53, 1700000001027000, 1, 445, 446, 'dateless'),
(199, 5, '772A21BF-4F7A-4B91-A8E6-0ECBB42379FB', 'entry 381', 216, 1700000001071000, 2, 209, NULL, 'entry 381'),
(201, 2, 'D420708C-EE2A-4E3C-A669-D4990CF40BFC', 'entry 334', 102, 1700000001102000, 2, 326, NULL, 'entry 334'),
(202, 3, 'F2E36CD0-3CB4-4CDB-BB4B-099B919BF619', 'Entry 366', 40, 1700000001111000, 1, 357, NULL, 'entry 366');
INSERT INTO "OVNoteBackLink_large" ("pk", "serverData") VALUES
(1, NULL),
(2, NULL),
(3, NULL),
(4, NULL),
(5, NULL),
(6, NULL),
(7, NULL),
(8, NULL),
(9, NULL),
(11, NULL),
(12, NULL),
(13, NULL),
(14, NULL),
(15, NULL),
(16, NULL),
(17, NULL),
(18, NULL),
(19, NULL),
(21, NULL),
(22, NULL),
(23, NULL),
(24, NULL),
(25, NULL),
(26, NULL),
(27, NULL),
(28, NULL),
(29, NULL),
(31, NULL),
(32, NULL),
(33, NULL),
(34, NULL),
(35, NULL),
(36, NULL),
(37, NULL),
(38, NULL),
(39, NULL),
(41, NULL),
(42, NULL),
(43, NULL),
(44, NULL),
(45, NULL),
(46, NULL),
(47, NULL),
(48, NULL),
(49, NULL),
(51, NULL),
(52, NULL),
(53, NULL),
(54, NULL),
(55, NULL),
(56, NULL),
(57, NULL),
(58, NULL),
(59, NULL),
(61, NULL),
(62, NULL),
(63, NULL),
(64, NULL),
(65, NULL),
(66, NULL),
(67, NULL),
(68, NULL),
(69, NULL),
(71, NULL),
(72, NULL),
(73, NULL),
(74, NULL),
(75, NULL),
(76, NULL),
(77, NULL),
(78, NULL),
(79, NULL),
(81, NULL),
(82, NULL),
(83, NULL),
(84, NULL),
(85, NULL),
(86, NULL),
(87, NULL),
(88, NULL),
(89, NULL),
(91, NULL),
(92, NULL),
(93, NULL),
(94, NULL),
(95, NULL),
(96, NULL),
(97, NULL),
(98, NULL),
(99, NULL),
(101, NULL),
(102, NULL),
(103, NULL),
(104, NULL),
(105, NULL),
(106, NULL),
(107, NULL),
(108, NULL),
(109, NULL),
(111, NULL),
(112, NULL),
(113, NULL),
(114, NULL),
(115, NULL),
(116, NULL),
(117, NULL),
(118, NULL),
(119, NULL),
(121, NULL),
(122, NULL),
(123, NULL),
(124, NULL),
(125, NULL),
(126, NULL),
(127, NULL),
(128, NULL),
(129, NULL),
(131, NULL),
(132, NULL),
(133, NULL),
(134, NULL),
(135, NULL),
(136, NULL),
(137, NULL),
(138, NULL),
(139, NULL),
(141, NULL),
(142, NULL),
(143, NULL),
(144, NULL),
(145, NULL),
(146, NULL),
(147, NULL),
(148, NULL),
(149, NULL),
(151, NULL),
(152, NULL),
(153, NULL),
(154, NULL),
(155, NULL),
(156, NULL),
(157, NULL),
(158, NULL),
(159, NULL),
(161, NULL),
(162, NULL),
(163, NULL),
(164, NULL),
(165, NULL),
(166, NULL),
(167, NULL),
(168, NULL),
(169, NULL),
(171, NULL),
(172, NULL),
(173, NULL),
(174, NULL),
(175, NULL),
(176, NULL),
(177, NULL),
(178, NULL),
(179, NULL),
(181, NULL),
(182, NULL),
(183, NULL),
(184, NULL),
(185, NULL),
(186, NULL),
(187, NULL),
(188, NULL),
(189, NULL),
(191, NULL),
(192, NULL),
(193, NULL),
(194, NULL),
(195, NULL),
(196, NULL),
(197, NULL),
(198, NULL),
(199, NULL),
(201, NULL),
(202, NULL);
INSERT INTO "OVPassword" ("pk", "rowVersion", "uniqueIdentifier", "creationDate", "creationDevice", "encryptedData", "encryptionVersion", "hint", "biometry") VALUES
(1, 2, '4A0044FC-616C-46B3-A88B-46B38E45F777', 1700000001455000, 'Zoë’s test machine', X'6279207768696368206974206973207265636F676E69736564', 3, X'6974277320227468652220757375616C206F6E65', 1);
INSERT INTO "OVNoteServerData" ("pk", "rowVersion") VALUES
(1, 2),
(2, 3),
(3, 4),
(4, 5),
(5, 1),
(6, 2),
(7, 3),
(8, 4),
(9, 5),
(11, 2),
(12, 3),
(13, 4),
(14, 5),
(15, 1),
(16, 2),
(17, 3),
(18, 4),
(19, 5),
(21, 2),
(22, 3),
(23, 4),
(24, 5),
(25, 1),
(26, 2),
(27, 3),
(28, 4),
(29, 5),
(31, 2),
(32, 3),
(33, 4),
(34, 5),
(35, 1),
(36, 2),
(37, 3),
(38, 4),
(39, 5),
(41, 2),
(42, 3),
(43, 4),
(44, 5),
(45, 1),
(46, 2),
(47, 3),
(48, 4),
(49, 5),
(51, 2),
(52, 3),
(53, 4),
(54, 5),
(55, 1),
(56, 2),
(57, 3),
(58, 4),
(59, 5),
(61, 2),
(62, 3),
(63, 4),
(64, 5),
(65, 1),
(66, 2),
(67, 3),
(68, 4),
(69, 5),
(71, 2);
INSERT INTO "OVNoteServerData_large" ("pk", "systemFields") VALUES
(1, X'0001FF2062706C697374206F66206E6F746535'),
(2, X'0001FF2062706C697374206F66206E6F74653130'),
(3, X'0001FF2062706C697374206F66206E6F74653135'),
(4, X'0001FF2062706C697374206F66206E6F74653230'),
(5, X'0001FF2062706C697374206F66206E6F74653235'),
(6, X'0001FF2062706C697374206F66206E6F74653330'),
(7, X'0001FF2062706C697374206F66206E6F74653335'),
(8, X'0001FF2062706C697374206F66206E6F74653430'),
(9, X'0001FF2062706C697374206F66206E6F74653435'),
(11, X'0001FF2062706C697374206F66206E6F74653530'),
(12, X'0001FF2062706C697374206F66206E6F74653535'),
(13, X'0001FF2062706C697374206F66206E6F74653630'),
(14, X'0001FF2062706C697374206F66206E6F74653635'),
(15, X'0001FF2062706C697374206F66206E6F74653730'),
(16, X'0001FF2062706C697374206F66206E6F74653735'),
(17, X'0001FF2062706C697374206F66206E6F74653830'),
(18, X'0001FF2062706C697374206F66206E6F74653835'),
(19, X'0001FF2062706C697374206F66206E6F74653930'),
(21, X'0001FF2062706C697374206F66206E6F74653935'),
(22, X'0001FF2062706C697374206F66206E6F7465313030'),
(23, X'0001FF2062706C697374206F66206E6F7465313035'),
(24, X'0001FF2062706C697374206F66206E6F7465313130'),
(25, X'0001FF2062706C697374206F66206E6F7465313135'),
(26, X'0001FF2062706C697374206F66206E6F7465313230'),
(27, X'0001FF2062706C697374206F66206E6F7465313235'),
(28, X'0001FF2062706C697374206F66206E6F7465313330'),
(29, X'0001FF2062706C697374206F66206E6F7465313335'),
(31, X'0001FF2062706C697374206F66206E6F7465313430'),
(32, X'0001FF2062706C697374206F66206E6F7465313435'),
(33, X'0001FF2062706C697374206F66206E6F7465313530'),
(34, X'0001FF2062706C697374206F66206E6F7465313535'),
(35, X'0001FF2062706C697374206F66206E6F7465313630'),
(36, X'0001FF2062706C697374206F66206E6F7465313635'),
(37, X'0001FF2062706C697374206F66206E6F7465313730'),
(38, X'0001FF2062706C697374206F66206E6F7465313735'),
(39, X'0001FF2062706C697374206F66206E6F7465313830'),
(41, X'0001FF2062706C697374206F66206E6F7465313835'),
(42, X'0001FF2062706C697374206F66206E6F7465313930'),
(43, X'0001FF2062706C697374206F66206E6F7465313935'),
(44, X'0001FF2062706C697374206F66206E6F7465323030'),
(45, X'0001FF2062706C697374206F66206E6F7465323035'),
(46, X'0001FF2062706C697374206F66206E6F7465323130'),
(47, X'0001FF2062706C697374206F66206E6F7465323135'),
(48, X'0001FF2062706C697374206F66206E6F7465323230'),
(49, X'0001FF2062706C697374206F66206E6F7465323235'),
(51, X'0001FF2062706C697374206F66206E6F7465323330'),
(52, X'0001FF2062706C697374206F66206E6F7465323335'),
(53, X'0001FF2062706C697374206F66206E6F7465323430'),
(54, X'0001FF2062706C697374206F66206E6F7465323435'),
(55, X'0001FF2062706C697374206F66206E6F7465323530'),
(56, X'0001FF2062706C697374206F66206E6F7465323535'),
(57, X'0001FF2062706C697374206F66206E6F7465323630'),
(58, X'0001FF2062706C697374206F66206E6F7465323635'),
(59, X'0001FF2062706C697374206F66206E6F7465323730'),
(61, X'0001FF2062706C697374206F66206E6F7465323735'),
(62, X'0001FF2062706C697374206F66206E6F7465323830'),
(63, X'0001FF2062706C697374206F66206E6F7465323835'),
(64, X'0001FF2062706C697374206F66206E6F7465323930'),
(65, X'0001FF2062706C697374206F66206E6F7465323935'),
(66, X'0001FF2062706C697374206F66206E6F7465333030'),
(67, X'0001FF2062706C697374206F66206E6F7465333035'),
(68, X'0001FF2062706C697374206F66206E6F7465333130'),
(69, X'0001FF2062706C697374206F66206E6F7465333135'),
(71, X'0001FF2062706C697374206F66206E6F7465333230');
INSERT INTO "OVNoteFileServerData" ("pk", "rowVersion") VALUES
(1, 2),
(2, 3),
(3, 4),
(4, 5),
(5, 1),
(6, 2),
(7, 3),
(8, 4),
(9, 5),
(11, 2),
(12, 3),
(13, 4),
(14, 5),
(15, 1),
(16, 2),
(17, 3),
(18, 4),
(19, 5),
(21, 2),
(22, 3),
(23, 4),
(24, 5),
(25, 1),
(26, 2);
INSERT INTO "OVNoteFileServerData_large" ("pk", "systemFields") VALUES
(1, X'FEFF206F6620612066696C65'),
(2, X'FEFF206F6620612066696C65'),
(3, X'FEFF206F6620612066696C65'),
(4, X'FEFF206F6620612066696C65'),
(5, X'FEFF206F6620612066696C65'),
(6, X'FEFF206F6620612066696C65'),
(7, X'FEFF206F6620612066696C65'),
(8, X'FEFF206F6620612066696C65'),
(9, X'FEFF206F6620612066696C65'),
(11, X'FEFF206F6620612066696C65'),
(12, X'FEFF206F6620612066696C65'),
(13, X'FEFF206F6620612066696C65'),
(14, X'FEFF206F6620612066696C65'),
(15, X'FEFF206F6620612066696C65'),
(16, X'FEFF206F6620612066696C65'),
(17, X'FEFF206F6620612066696C65'),
(18, X'FEFF206F6620612066696C65'),
(19, X'FEFF206F6620612066696C65'),
(21, X'FEFF206F6620612066696C65'),
(22, X'FEFF206F6620612066696C65'),
(23, X'FEFF206F6620612066696C65'),
(24, X'FEFF206F6620612066696C65'),
(25, X'FEFF206F6620612066696C65'),
(26, X'FEFF206F6620612066696C65');
INSERT INTO "OVNote_tags" ("owner", "member") VALUES
(1, 1),
(5, 2),
(5, 3),
(7, 4),
(12, 5),
(12, 6),
(12, 7),
(13, 8),
(14, 9),
(14, 11),
(15, 12),
(17, 13),
(18, 14),
(18, 15),
(22, 16),
(34, 17),
(35, 17),
(35, 18),
(35, 19),
(53, 17),
(53, 19),
(53, 21),
(53, 22),
(53, 23),
(53, 24),
(53, 25),
(53, 26),
(54, 17),
(54, 26),
(54, 27),
(54, 28),
(55, 29),
(55, 31),
(55, 32),
(55, 33),
(55, 34),
(55, 35),
(55, 36),
(55, 37),
(66, 6),
(66, 7),
(71, 19),
(71, 38),
(72, 12),
(72, 39),
(72, 41),
(73, 42),
(73, 43),
(76, 17),
(76, 38),
(81, 17),
(81, 18),
(81, 44),
(82, 39),
(82, 41),
(82, 42),
(82, 43),
(83, 19),
(83, 38),
(83, 45),
(84, 12),
(84, 18),
(85, 17),
(85, 26),
(85, 39),
(85, 41),
(86, 12),
(86, 17),
(87, 17),
(87, 26),
(88, 17),
(88, 18),
(88, 26),
(88, 28),
(88, 44),
(91, 12),
(91, 39),
(91, 41),
(92, 17),
(92, 18),
(92, 26),
(92, 28),
(92, 44),
(93, 19),
(93, 38),
(94, 17),
(94, 26),
(95, 17),
(95, 26),
(95, 28),
(96, 18),
(96, 19),
(96, 44),
(97, 18),
(97, 38),
(98, 18),
(98, 19),
(101, 17),
(101, 18),
(101, 44),
(102, 17),
(102, 26),
(102, 28),
(102, 42),
(102, 43),
(103, 17),
(103, 26),
(103, 28),
(106, 17),
(106, 26),
(106, 28),
(106, 39),
(106, 41),
(107, 12),
(107, 19),
(109, 19),
(109, 42),
(109, 43),
(111, 19),
(111, 38),
(112, 17),
(112, 19),
(112, 26),
(112, 28),
(112, 45),
(113, 18),
(113, 19),
(113, 44),
(114, 19),
(114, 38),
(114, 45),
(115, 17),
(115, 19),
(117, 18),
(117, 44),
(118, 18),
(118, 42),
(118, 43),
(118, 44),
(119, 17),
(121, 12),
(121, 18),
(121, 44),
(122, 18),
(122, 19),
(122, 44),
(122, 45),
(124, 17),
(124, 26),
(124, 28),
(124, 42),
(124, 43),
(125, 17),
(125, 19),
(125, 26),
(126, 17),
(126, 19),
(126, 26),
(126, 28),
(127, 18),
(127, 39),
(127, 41),
(127, 44),
(128, 18),
(128, 39),
(128, 41),
(128, 44),
(134, 17),
(134, 18),
(134, 26),
(134, 28),
(134, 44),
(135, 17),
(135, 39),
(135, 41),
(136, 38),
(136, 39),
(136, 41),
(138, 18),
(138, 42),
(138, 43),
(141, 17),
(141, 19),
(141, 45),
(142, 17),
(142, 26),
(142, 28),
(143, 17),
(143, 18),
(143, 26),
(143, 28),
(143, 44),
(144, 18),
(144, 38),
(144, 44),
(146, 42),
(146, 43),
(147, 18),
(147, 44),
(149, 17),
(149, 18),
(149, 26),
(149, 44),
(152, 17),
(152, 26),
(152, 28),
(153, 18),
(153, 44),
(154, 19),
(154, 39),
(154, 41),
(154, 45),
(156, 18),
(156, 42),
(156, 43),
(157, 12),
(157, 18),
(157, 44),
(161, 12),
(161, 17),
(161, 26),
(164, 19),
(164, 39),
(164, 41),
(164, 45),
(165, 18),
(165, 44),
(169, 17),
(169, 18),
(171, 12),
(171, 17),
(172, 17),
(172, 19),
(172, 26),
(173, 18),
(173, 19),
(173, 44),
(176, 17),
(176, 26),
(176, 28),
(176, 42),
(176, 43),
(179, 17),
(182, 12),
(182, 42),
(182, 43),
(183, 12),
(183, 39),
(183, 41),
(186, 12),
(186, 42),
(186, 43),
(187, 12),
(187, 17),
(188, 19),
(188, 45),
(189, 17),
(189, 26),
(189, 39),
(189, 41),
(191, 12),
(191, 19),
(191, 45),
(193, 18),
(193, 19),
(193, 44),
(194, 39),
(194, 41),
(194, 42),
(194, 43),
(197, 17),
(197, 18),
(197, 26),
(199, 18),
(199, 38),
(199, 44),
(201, 19),
(201, 38),
(202, 12),
(202, 17),
(202, 26),
(202, 28),
(203, 17),
(203, 19),
(204, 17),
(204, 39),
(204, 41),
(207, 12),
(207, 19),
(207, 45),
(211, 17),
(211, 39),
(211, 41),
(212, 17),
(212, 18),
(212, 44),
(213, 17),
(213, 26),
(213, 28),
(213, 42),
(213, 43),
(214, 19),
(214, 38),
(215, 17),
(215, 26),
(215, 28),
(216, 18),
(216, 19),
(216, 44),
(216, 45),
(217, 12),
(217, 18),
(217, 44),
(218, 17),
(218, 18),
(218, 44),
(219, 19),
(219, 39),
(219, 41),
(219, 45),
(221, 18),
(221, 19),
(221, 44),
(221, 45),
(222, 17),
(222, 19),
(222, 26),
(222, 28),
(223, 18),
(223, 38),
(224, 12),
(224, 17),
(224, 26),
(224, 28),
(225, 17),
(225, 18),
(225, 26),
(227, 17),
(227, 26),
(227, 28),
(227, 38),
(229, 18),
(229, 38),
(229, 44),
(232, 18),
(232, 19),
(232, 44),
(232, 45),
(233, 17),
(233, 18),
(233, 26),
(233, 28),
(233, 44),
(234, 17),
(234, 18),
(234, 26),
(236, 18),
(236, 19),
(236, 44),
(237, 12),
(237, 17),
(238, 19),
(238, 38),
(238, 45),
(242, 17),
(242, 26),
(242, 28),
(242, 39),
(242, 41),
(246, 12),
(246, 18),
(246, 44),
(249, 38),
(249, 39),
(249, 41),
(252, 17),
(252, 18),
(252, 26),
(252, 28),
(252, 44),
(253, 12),
(253, 17),
(254, 17),
(254, 18),
(254, 26),
(254, 44),
(258, 18),
(258, 19),
(258, 44),
(258, 45),
(259, 12),
(259, 42),
(259, 43),
(261, 18),
(261, 42),
(261, 43),
(262, 38),
(262, 42),
(262, 43),
(263, 17),
(263, 26),
(263, 28),
(263, 39),
(263, 41),
(264, 17),
(264, 39),
(264, 41),
(267, 12),
(267, 17),
(267, 26),
(268, 12),
(268, 18),
(268, 44),
(269, 17),
(269, 26),
(269, 28),
(269, 39),
(269, 41),
(272, 17),
(272, 26),
(272, 28),
(272, 42),
(272, 43),
(276, 17),
(276, 26),
(276, 38),
(277, 18),
(277, 38),
(277, 44),
(278, 18),
(278, 42),
(278, 43),
(278, 44),
(279, 18),
(279, 44),
(281, 38),
(281, 39),
(281, 41),
(283, 18),
(283, 38),
(283, 44),
(285, 17),
(285, 26),
(285, 28),
(285, 42),
(285, 43),
(286, 17),
(288, 12),
(288, 17),
(289, 17),
(289, 26),
(289, 28),
(291, 17),
(291, 26),
(291, 38),
(292, 18),
(292, 19),
(292, 44),
(292, 45),
(293, 18),
(293, 39),
(293, 41),
(293, 44),
(295, 18),
(295, 19),
(295, 44),
(296, 19),
(296, 42),
(296, 43),
(297, 12),
(297, 18),
(302, 17),
(302, 26),
(302, 28),
(302, 38),
(303, 18),
(303, 44),
(304, 12),
(304, 18),
(304, 44),
(306, 17),
(306, 19),
(306, 26),
(306, 45),
(307, 17),
(307, 39),
(307, 41),
(309, 18),
(309, 44),
(311, 12),
(311, 19),
(312, 19),
(312, 38),
(313, 19),
(313, 38),
(313, 45),
(314, 19),
(314, 42),
(314, 43),
(315, 18),
(315, 39),
(315, 41),
(315, 44),
(316, 18),
(316, 38),
(317, 17),
(317, 26),
(317, 42),
(317, 43),
(318, 19),
(319, 17),
(319, 18),
(319, 26),
(319, 44),
(321, 18),
(321, 19),
(321, 44),
(325, 17),
(325, 18),
(325, 26),
(326, 18),
(326, 38),
(327, 18),
(327, 38),
(329, 17),
(329, 18),
(329, 26),
(331, 17),
(331, 26),
(331, 28),
(336, 18),
(336, 19),
(336, 44),
(338, 17),
(338, 18),
(338, 26),
(338, 28),
(339, 18),
(339, 19),
(339, 45),
(342, 18),
(342, 19),
(342, 45),
(345, 17),
(345, 19),
(345, 26),
(345, 45),
(346, 18),
(347, 19),
(347, 39),
(347, 41),
(349, 42),
(349, 43),
(351, 17),
(351, 18),
(351, 26),
(351, 28),
(353, 17),
(353, 19),
(353, 26),
(353, 28),
(353, 45),
(354, 19),
(354, 38),
(355, 17),
(355, 26),
(355, 28),
(356, 17),
(358, 19),
(358, 39),
(358, 41),
(359, 12),
(359, 17),
(359, 26),
(361, 18),
(361, 39),
(361, 41),
(361, 44),
(363, 17),
(363, 19),
(363, 26),
(364, 17),
(364, 18),
(364, 44),
(367, 17),
(367, 26),
(367, 28),
(368, 12),
(368, 42),
(368, 43),
(369, 19),
(369, 39),
(369, 41),
(371, 18),
(371, 44),
(372, 19),
(372, 39),
(372, 41),
(372, 45),
(374, 18),
(374, 44),
(375, 17),
(375, 19),
(375, 26),
(375, 28),
(377, 17),
(377, 39),
(377, 41),
(378, 19),
(378, 45),
(381, 17),
(381, 19),
(381, 26),
(382, 38),
(382, 39),
(382, 41),
(385, 19),
(385, 42),
(385, 43),
(387, 39),
(387, 41),
(387, 42),
(387, 43),
(388, 18),
(388, 19),
(388, 45),
(389, 17),
(389, 19),
(395, 17),
(395, 18),
(395, 44),
(398, 12),
(398, 39),
(398, 41),
(401, 17),
(401, 18),
(401, 26),
(402, 17),
(402, 26),
(402, 28),
(402, 42),
(402, 43),
(404, 17),
(404, 19),
(405, 17),
(405, 26),
(405, 28),
(405, 39),
(405, 41),
(406, 19),
(406, 39),
(406, 41),
(407, 19),
(407, 45),
(408, 18),
(408, 39),
(408, 41),
(408, 44),
(409, 18),
(409, 39),
(409, 41),
(409, 44),
(412, 18),
(412, 19),
(413, 17),
(413, 26),
(413, 28),
(413, 39),
(413, 41),
(414, 18),
(414, 19),
(414, 44),
(415, 18),
(415, 19),
(415, 44),
(418, 12),
(418, 19),
(423, 38),
(423, 42),
(423, 43);

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
(1002, 1, 'spotlight', -32768, 'tarn-store://6F1C0B1E-7A52-4B0D-9E57-0C5A9C3D1E20/OVNote/p12'),
(1003, 1, 'it''s "another" queue', 32767, 'tarn-store://6F1C0B1E-7A52-4B0D-9E57-0C5A9C3D1E20/OVNoteTag/p3'),
(1004, 1, '', 0, 'no identifier at all');
INSERT INTO "OVServerMetadata" ("pk", "rowVersion", "noteZoneIDData", "serverChangeTokenData", "noteZoneSubscriptionID")
VALUES (3, 7, X'62706C6973743030', X'00FF00', 'zone-ø');

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
(1002, 1, 'OVNote', 0, 'tarn-store://6F1C0B1E-7A52-4B0D-9E57-0C5A9C3D1E20/OVNote/p7'),
(1003, 1, 'OVNoteFile', 2, 'tarn-store://6F1C0B1E-7A52-4B0D-9E57-0C5A9C3D1E20/OVNoteImage/p1001'),
(1004, 1, NULL, -32768, 'tarn-store://00000000-0000-0000-0000-000000000000/OVNote/p1');
INSERT INTO "store_keys" ("entity", "nextKey") VALUES
('OVNote', 5060),
('OVNoteTag', 5090),
('OVNoteFile', 5100),
('OVNoteBackLink', 5140),
('OVPassword', 5100),
('OVChange', 5080),
('OVChangeItem', 5120),
('OVInternalChanges', 5170),
('OVExternalChanges', 5170),
('OVNoteServerData', 5160),
('OVNoteFileServerData', 5200);
INSERT INTO "OVNote_text_signature" ("pk", "signature") VALUES
(1, X'01000F01157DB01AEA06B98CEE21001683'),
(2, X'01000F012DBAB4A8708A36FDC82241684C20311CC0'),
(3, X'01000F0160142B295A8A67'),
(4, X'01000F01'),
(5, X'01000F01C14230D4D9F15BA0E1CC264440098100DA'),
(6, X'01000F013431D81A8936AF30C6085C3510D2'),
(7, X'01000F012074A98C8129DD6F839C08482442CC'),
(8, NULL),
(9, X'01000F01258358EA3A0488'),
(11, X'01000F0148CB2BA950384C3941'),
(12, X'01000F011D9EA8FD70AD0F3A445C3989EA07B5A029206991A9432A05C58A0D240415'),
(13, X'01000F014221648A541388284CA7'),
(14, X'01000F011014111D90280F0EADD29562'),
(15, X'01000F013489585D1544'),
(16, NULL),
(17, X'01000F01422BBA62879E60484E211853D9501027'),
(18, X'01000F010C4951EF69D66963C309AC0414'),
(19, X'01000F0140851841624E99476E8284'),
(21, X'01000F0168248486849025F566826018223696164A6172499050615731DA3211'),
(22, X'01000F015182A408320DC59ACC23814C705C'),
(23, X'01000F01'),
(24, NULL),
(25, X'01000F0120'),
(26, X'01000F01'),
(27, X'01000F01'),
(28, X'01000F01'),
(29, X'01000F0108'),
(31, X'01000F01'),
(32, NULL),
(33, X'01000F01'),
(34, X'01000F0151'),
(35, X'01000F0110E8480E13'),
(36, X'01000F011C'),
(37, X'01000F01E18B0452'),
(38, X'01000F0140'),
(39, X'01000F01307C2A2E2A08742139CA3309'),
(41, X'01000F0133829814E71406EB040A4362'),
(42, X'01000F013829C984CE0E91'),
(43, X'01000F013C846CC4E812'),
(44, X'01000F01F110287985F0220DE8'),
(45, X'01000F011B509CC58820'),
(46, X'01000F012485B70F02DCFD70C00B4D81F810'),
(47, X'01000F01C842275E649BC208'),
(48, NULL),
(49, X'01000F01E3C610D2A8A0'),
(51, X'01000F01D08CC3178445A96CA022128861C1C76E966402'),
(52, X'01000F01DA23554516F9001C01'),
(53, X'01000F0131E09E88A0557A1B702008E4703C61FA064451C5'),
(54, X'01000F0106D009C568B490C4A624006F6AF0'),
(55, X'01000F01A39010D49A1818A78D126D'),
(56, NULL),
(57, X'01000F0156005274BA932F'),
(58, X'01000F010C06A0320EC7E029D833AA84FC8A9949045B188D21BC20'),
(59, X'01000F01F301053E8896220AD3E8AD92F353A6400600C5'),
(61, X'01000F014701A77C8D680482'),
(62, X'01000F01189068C422'),
(63, NULL),
(64, NULL),
(65, NULL),
(66, NULL),
(67, NULL),
(68, NULL),
(69, NULL),
(71, X'01000F01F60018800850077EF38906C0CF5C3D23214AD0'),
(72, NULL),
(73, NULL),
(74, X'01000F0175ED4153430261C94754061953536B66930FA1345340E892145D1812C0721600708A04F8'),
(75, X'01000F01A09624A0AC04002D60045840C98B68B1C1240934D081BD9EE4161CB703548819F9'),
(76, X'01000F01'),
(77, X'01000F01A85D23D0821762938048B604FA728499A2A25AA091815D1525F1031022D620FC672A228A4CBAA22C04004A54230AE8'),
(78, X'01000F01ECB5D02411E01E00110482EB5117E513402A80A3F13A09CF048502E3'),
(79, X'01000F0120AF42A285849307967021B0563ED4255AEF90811E83960DC04905A65674090A00387C42BA'),
(81, X'01000F01C40F028439299A4234D08ACD0362738152941E2485038220C8D611C44803F2'),
(82, X'01000F01169F834240C2878827680487A232C9409B2BB1D44192DF9C1F5670F7C9D4F024147840D1'),
(83, X'01000F01184F56288989D0422A920FCD0E585695E480127C8AB6C06E515804C0081BE2'),
(84, X'01000F01595F46143AE41801D545B8060210B467A5F14418C9D1048A000E224F2A999F81A1FE00C0610081B0'),
(85, X'01000F01AC94C2314D01059810937429C99C8D420F7B5DEA0A38C70706B024968B92A83040B3'),
(86, X'01000F0180391AEC433F8842D9A69253784910EA030B9B138CD5D50158627EC54AC45C8029CA830A068BBC15A88110355321681E'),
(87, X'01000F0168B619D1D876146241F6026324884AC225E7B074E90611B1516007A84064A1151836012E4E3440289144C0EC'),
(88, NULL),
(89, X'01000F01D810E0022914C1F4DB3CE8927834508E490903C8'),
(91, X'01000F01A4554034D81148900042B001C99E88821F599EA80C72A30F26B107868B93AA904032'),
(92, X'01000F01785F4F1834F50800D50720236419105F93D3C61BC9C814EA50762205AAF00095ABBB4280391880B5'),
(93, X'01000F01787519614185081450914BA08AB6F4920A710B2E334D1203DB01A0883B8D2F64038EA81613E51A81259C60404C'),
(94, X'01000F01'),
(95, X'01000F01E87C51B2D25A54189344BDA096825209E84C0F30ABDB8419119382D2B21B210EA8CC2122E885250194B6220240CC'),
(96, NULL),
(97, X'01000F01ED4581054107C059EA93BF365C64383286C4C8347491A8'),
(98, X'01000F01185F23121912C4407D110042FD8BC23F345DDE918246900B2C891CA9E455024CC30584CA30B0F8'),
(99, X'01000F019C4BBA704034690F98804A197C08B747C948D0C6C4F4D434CB71A882A2188C5A'),
(101, X'01000F011048442A9D00A064819930CF28F99258C98E4C94D562758624D920F853020134C8CE7800001B87E054'),
(102, X'01000F01B6138060A43169A911118808C69F88C547409EAA84DB3AC3266109164D01A0820072'),
(103, X'01000F019E20D7046A5535D44F38E9E478110486C3001360'),
(104, NULL),
(105, X'01000F01B41792E910C8818440C89E385EF09A159A342DA24039038821B0'),
(106, X'01000F01F2E8640D4DFE84084200A8B6200A093241808C3459835A7C0391868782A4206B71446356C066469B11A29810695ACB917458'),
(107, X'01000F0150CA031A6590A56C1399B143007DB4BC4B8C4B9F20936D2C14F900B86942833DC84552000247050554'),
(108, X'01000F01D40694810D4C049A0296F65D615BFA0140215F472A37C403080220'),
(109, X'01000F01B2A18726230073FA5B08F28034BA2117A9000160'),
(111, X'01000F01486D5480969419E81DC1A81217B45BE19AFF94A80628021FA2839D842430F90800A80000F1'),
(112, NULL),
(113, X'01000F01DCB4900799641AC8090FE98A482685166378C45B8148C89900742060'),
(114, X'01000F01DA020094223929F40D0671FB432908B7E0'),
(115, X'01000F01B902920263053870DA18C144B8B89306C30053C3'),
(116, X'01000F01A0C539683196398C4CA18D20A5A248938B7EA1E2236B505BAB218F011D227A0A24839B81018110A0E4402210CE'),
(117, X'01000F0172150454A8850701F48445D584E388697AB17A642320'),
(118, X'01000F014C5F23021C52C4626549CC48458063BC187FC4C08C26840B61983CBE427D024E470188DB018198'),
(119, X'01000F01A4574AC011034BC8934C140D78F647B499C02C53B00047E624C1CE82CBA54018D7049B'),
(121, X'01000F01F47E2220884A8991A9D881BB5D32C850B4D168033B039800F2'),
(122, X'01000F01D48D812193C05E5801052BC35D05A116287ACEEB01084E5904652020'),
(123, NULL),
(124, X'01000F01B60B201CC942054B9866E01717311517496E35E2BE39DC000EB1C80B824B0850'),
(125, X'01000F0158D20634788A2144931EC810086FE4586B8C067F10994D8214B041B5F958C64DA0E30A0160451803F4'),
(126, X'01000F0148213815A43D69C0914BA2DED49B85974208164F1060C0E4'),
(127, X'01000F0130B74EB23023026D03688108515ECD34C992CA13D460C6E024406808516E415C0B48F1'),
(128, NULL),
(129, X'01000F01'),
(131, X'01000F0130C02A4D04CFA027821C12098514C4'),
(132, X'01000F01B87C5913C248511811052500A4CAF0B144F44B1DB23155157B2FD0363446417FE9806002E8C1498500D64102496C'),
(133, X'01000F0170255395AF940068195021A6D2815E65827A50CA2680221DA047A1DC34628820022A63CA78'),
(134, X'01000F01E820309D4235AD20413583205019C5868E204D1E13E091EC'),
(135, X'01000F01F8BA8848F8120708E07A0025105340D55A4668F20555D928250E3AAD3D729171172011E281A1B28812C8'),
(136, NULL),
(137, X'01000F014F0694802D83A3E956804A'),
(138, X'01000F01BDC0C89590266A21114F5ADE81701C3642'),
(139, X'01000F0188A0A2022050D9F1DAE8E20128FCB27781826140'),
(141, NULL),
(142, X'01000F01704F2212BB5ACC44548588035493F26F14575498C846D13DA6A0382C44CC0A1E0205905270A258'),
(143, X'01000F01E8741DA191A52B8240902B8839204C33CFFD0DE1934F10303F09AD80718858742386C9812B631320240D4ED0CC'),
(144, NULL),
(145, X'01000F01AC45392561271496EA6BE71310103434847E9A016890A0'),
(146, X'01000F01420241005B7251A29FF9A1E1C7F8CC4ABA10C84C3708381D70'),
(147, X'01000F01'),
(148, X'01000F0178EB28DE4C21FAC23B808244212E14A93C1074899D079AA6690A908710E1'),
(149, X'01000F01A874EB44829382A1C4C0F6043A1300D140465EA258895D19EDB613D033D620EC222B20981C32A79602084AC52360C8'),
(151, X'01000F01ACD6C6C1488101BB0411C40A4A1FCC974E4993A00E12368526F905866301AA8802F9'),
(152, NULL),
(153, X'01000F01F8BA9848E814150C803A0067A15482C45E4249F69E19F908E40233882CF28179D57014AD01A4768860AC'),
(154, NULL),
(155, NULL),
(156, X'01000F017A3D814342461C9A0F30075982FA0AC5C30DC93541166E2094165236C0385600564104B8'),
(157, X'01000F01E8342DD1B042144240E40220A6848C50BBA6387EA15E01B1110A07A848E4A1354836018C6E250028154040EC'),
(158, X'01000F01F4280C2BEEB0A80187DE0023168CC640C4D4C48828'),
(159, X'01000F01FC2A2816C840B1802922C27555125565299420999D0AB3A46121C8191AE3'),
(161, X'01000F01355540C63103D4115170F044'),
(162, X'01000F016C55712CA1470008E642B3B155481034805588B2F01A6A'),
(163, NULL),
(164, NULL),
(165, X'01000F01'),
(166, X'01000F01A4B22CA8C04CC029620C5242E08F697990B401449080B58EF4364C82005C910979'),
(167, X'01000F01508ACC2E71883124B31C50022C6BB26C0B884B9A54814C2414D001A4D24661DCC841510164D3198134'),
(168, NULL),
(169, X'01000F011C4283162B5108705F58FB8628340006472157C0'),
(171, X'01000F01409D1561F020340B492612E8660C925270272A24A177B1995F42448C08F9278588F258760C22002945654068'),
(172, X'01000F01B86D48BC31084383A6004DE36BD7F090EA94527CA0D9802843920680121460'),
(173, X'01000F0148DB440438E408019107204B221574F79573E40BC8D804EAC08DB2852239978BA32A12C2E90000F4'),
(174, X'01000F0140B4013D9843044252D602282130AE6081A732766B0711B1116104E82AE5B10D0C3601060E252AAA91C440AC'),
(175, X'01000F01ACD2D299008124C94454CD0E691FE3D4062D93690E9A028386D60D076301EA90003A'),
(176, NULL),
(177, X'01000F01F20984162D1443AEDC3C8AB028B14782A91407C8'),
(178, X'01000F01DA55280421C12A53346701F6C783CC5492B36A608CA8'),
(179, X'01000F013594D2945281B10565CC6D9F08A06A058A71250940C100583A74'),
(181, X'01000F01702E26CD0A29A0824F04A3390B70E61BE1EC8D894E0274A803E0491071093C4410009520C2F9'),
(182, X'01000F0174AB0187C79449081DC0288A10945F6152BA50CC2738409DA4C305C627302822402A6142D1'),
(183, X'01000F01'),
(184, NULL),
(185, X'01000F01F403A1C114C0818C001A8E3A1DA15A941A34ADD246E803CC60A4'),
(186, X'01000F01E6292405005101420B19ACE70CD7EE41C0A680B5E461C31044011581C70072'),
(187, X'01000F0154A945014A1D0B164191A606E1085D8E007278'),
(188, X'01000F01C82F23B24C04B39008D1A06AE52C19272FC0C2499E05E24073A9C12510F2'),
(189, X'01000F015013E672082350319359812F6874CB04E11086CB1C40CFE00028E48A094C417CD84079'),
(191, X'01000F0194D360B323232AA50348013D10DCC59C5CD94C03B1C06BF568C97EA24700005CC04239'),
(192, NULL),
(193, X'01000F016A5310C881044B68E043B101556CF83D0BDC4C27E4A328'),
(194, X'01000F0154B3480170620540E104514010049441E43E240FBC66EBA102BC5AA965BF01AE14148E45FE732B42C015200E305005104062630812F6'),
(195, X'01000F01D015C40E266335244042885F6E7141DB420E08743AE80A845080631035'),
(196, X'01000F0158E2805AE210875C227A804FA04491475A426CF40711C988600ABA8A7C22D1610370508E80E0238980EC'),
(197, X'01000F0111148E62042D26F08264143F6CC44AC2D6020D300AC42A360800BF1476'),
(198, X'01000F01FC3750CE26733D2140409856EC5319C202028B746A880AC412042A10F5'),
(199, X'01000F013841E679014941023F9206E52A1B5616E724087482935028430403885BD33A'),
(201, X'01000F01'),
(202, X'01000F01D0DAC9235D74A094108A0C652629AB0845E4C58496035D7666AE1453449D2609909908581DE580BF95D1FCD0E0080250872E083376'),
(203, X'01000F01595B44153EE40815D5153216C005947B87714D01C9C91488800FA2C7A2581381899242C0491AA150'),
(204, X'01000F014AC380C69B40801CCF09B90213CBE2BD1D87F410AE669300768E3A8060580116620E044F62207D'),
(205, X'01000F015C5FC51522E42821D424481830131475C5F3E40BADD807A2C88440272A10752193810382090CA0F5'),
(206, X'01000F01545984562F0146A0C1E1'),
(207, X'01000F0130F976E88A620895A856CA0C204A81D21FC8F82671D8983D1E3366844005F041059B4C8182B9400E1C1500803C9009695A'),
(208, NULL),
(209, NULL),
(211, NULL),
(212, X'01000F012C5835A0C16808B99AF645E8081706084233819528'),
(213, NULL),
(214, X'01000F015066A2CB442802A96540AE123DF0E8037E28E7816C2234E021F420803A091E0411285D058179'),
(215, X'01000F018881301F04342D28410F323A509B811EA6A8112F407253E8'),
(216, NULL),
(217, X'01000F01683549E97107080458950E2094224C93096D0923B24E13038A3127819D883BA303B18D042BE1122066C526464C'),
(218, X'01000F01'),
(219, X'01000F0160E964050926100A4A108817011D0D70BD14C4365B9A0CF403D156B78094A8EED86C0312C06ED69A250AD810450AE801645A'),
(221, X'01000F0198599270503A690D98016E28263033194959D04347F514A0C9748908E01D083A'),
(222, X'01000F01D079068C2C195B4A66400FD188C2C300F694166B80FA482BE902948032117A'),
(223, X'01000F01205F48A10123428D03ED1550106EC537DD166E13900047A43CC0EEA259BA10590B0439'),
(224, NULL),
(225, X'01000F01992C49208049500A11152020A68860A854DC4B5F32A25D147BAFC0309246613FE98066A2AC94F80D115446436068'),
(226, X'01000F01F40BC76106EB018056D88D3915A1024B48748CD2C27C216C88F6'),
(227, X'01000F01B442D3822BD43C30398AF9647830008513804768'),
(228, X'01000F01F6970090F001808A58E21DD165928C6D5E2D6462156C'),
(229, X'01000F01CC6D291248449B00ADD04068F1E247A727D9A0970C0899846BA282110872'),
(231, X'01000F01B829350D4C5495C08201A1C4756F05372E49A0018C07A100610F009B1072'),
(232, NULL),
(233, X'01000F01E83DA614056FA14218289253604C1922151BA72A0A9D5457113256817BC078862AD90ACC20B0B632B91300644320611A'),
(234, X'01000F01B8B60C64B42D8A11B9F9813205400D24E682C4C6FB121598144B4107210D5452D8097C090B44D0894C96CC'),
(235, X'01000F01ACF6E0A8E44C08AEE00C010AA90B68F0192449079090BC26E41E9CD604510908F2'),
(236, X'01000F01'),
(237, X'01000F0168BE0581E042142829F452EA2C84BE20A1AF3064F90731B95D48458C4AECA01518B4416EA62422289147C0EC'),
(238, X'01000F0159D1041C3CA61001FC153047241734678176EA4B8DD104EA808FAB672A9813A1831404C86B0081F4'),
(239, X'01000F01B49708B2110302EC1B4C110D70F045B5DD506612B0424664A4C16A83C3A10A5C0604B9'),
(241, X'01000F01EAA16080EC1504257498A32AA6AD0A36A722005409A04DAC'),
(242, X'01000F01CC0D805393649ED06188A193587C35C60AE8E2B1003A2C41219C1065'),
(243, X'01000F018C929489078124CB4004C08E091FC89517C992282E3A1287A6A101066101F299207B'),
(244, NULL),
(245, X'01000F01C41F089A4C84F7002970C0F0D5AA0B352DD060910C0DD2856338890502F2'),
(246, X'01000F01A876A5A8E4456A3E2002C840958369E99B8249D0B100DD0E4C17B8C200500D08DA'),
(247, X'01000F01DC7B0CA308B0070270C65E425E15609150AF4685A3241459683CF4'),
(248, NULL),
(249, X'01000F01580348514180058DA8525C2D4BB57271E0130F816C2232C3C80DE5'),
(251, X'01000F01F403B161166B81481618016916050A589A302DD2C2F801EE28F4'),
(252, X'01000F01148ABCD2D60141A19248361A86D03B061CD1'),
(253, X'01000F01A81C19A2C25B50484B443BA18E8A501319EE4B380AE9812923BB9052B10661CFA980E133B68D90040054C446406C'),
(254, X'01000F01'),
(255, X'01000F01ADD674C94C0001BB0005C0004A9E8CD31F4996400E7AA23555F105842B05B88404DB'),
(256, NULL),
(257, X'01000F012120C9CF2459524E4B1C3492A864'),
(258, X'01000F0128B62991D866144244FA0240AE84A660A1A7B8F4E91611B1114817B910E5C1143836418E2E2520380704C0EE'),
(259, X'01000F01AEEFD36C5272C00F90FA503877193759411E50A0646678604F301C02A20188F2'),
(261, X'01000F018C7C19B0500A111A9B153C8610025A09784C5B1E7FF28511A3130212A503230E8AC0E622C8D131010074220248EC'),
(262, X'01000F01147D5D85809411081580A8A802945DC19EBF96C823B0421D108704D42570482010AB6000D9'),
(263, X'01000F01F0F8841412F669159440145A867424C86A1316A4C930CC5527106CEC4ED112712C8EF99015B19815A58D057C802089D412344A'),
(264, NULL),
(265, X'01000F01A87C23440237E79384C8B4043A1280994212DF82D1895D903DB603D223C621EC332BB2994C72B29802014B4C2360EC'),
(266, X'01000F01C228E410BAB454C6FD7C18602834E0D5099081F8'),
(267, X'01000F0130AC042DB40DC55562E21D6160'),
(268, X'01000F019EC20890302A0860046E41DDE3601C3472'),
(269, X'01000F01F8AA8C58F8A90A2080DE0138076D092AE7228463EB10159D846E60B5A9CD446558015788E0C070938CD0AC'),
(271, X'01000F01585B4414BCC01801F505304262A97479C5B3E48983D904A880CE22477A1857A1C3BE02806110A1F4'),
(272, NULL),
(273, X'01000F0185F620A0E44D682E40041FC0C7AB69F300A60104D4901D26DC160D922050C201F2'),
(274, X'01000F0128DBF4EC01048A3B70091963E90308E710A04921D281A44C6216084602D131087B'),
(275, X'01000F01789E9A4AF901C789EB7E824D215802035AC268F20779D10E20123B803D7280707F32122A00A0228AE068'),
(276, X'01000F012222D0911A04AD8124EF25D9C3E72FF4104750F855AF6C0D050218D3C906048074598079'),
(277, X'01000F01BE3D04040B54055736181684491825B2254B52'),
(278, X'01000F015C3D95048004130197202DAA12945FA1DEBE92CB3F88D22C508795841D741B2A0088700099'),
(279, X'01000F01443FCA51418604291530910058722B47CB2F48B4107A68100F541293C2385504D53100F1'),
(281, X'01000F0160944DB5980110027236126825E5382035A63347EF25D5F1114905E893E8A1450432120E4C5540AAF4C0D24C'),
(282, X'01000F01942F325050224C0A082144E83C31A71B0C5A1003B470D4204B21680EA21D09B7'),
(283, X'01000F01D8DA46206088A142B29FA05B025280792BAC457B163B2D20159946AC4148863CA86C2A4001155C81F0'),
(284, X'01000F01A553C4C8909161E20011CE2A4A9B9ADD056894A00A78A0A707B70E065900BA84843B'),
(285, X'01000F01EC45A3D0A29708214442F482521210E1C467FF0070D85D12213A5252A2F723C6802230AA6830291602085AA50348EC'),
(286, NULL),
(287, NULL),
(288, NULL),
(289, X'01000F01'),
(291, X'01000F015C168A184192449AA4637EE8EC54725A42350C95ACB004805A3C64'),
(292, X'01000F01E93479312105208200840A80B1E2EC02837D29E5922F11312B01A92017A2DC6C03BE99FB21651A22A40546102E'),
(293, X'01000F0160D7AD265E2813232108114A1980B411E03A2725F465CB3063EC02B1851D41B645628F81FC110BE06554140E194C8710CCB273082257'),
(294, X'01000F01A1583122620B535A61542F818E12521341C44B3852F9043D2B3BC012311E600F298860FAA4C910051016844248CC'),
(295, X'01000F01003D63C41015C030044AF004A02396AD62E6DEA371897F07297703C0024E14F6CF19329B486224B006204B4113216C'),
(296, NULL),
(297, X'01000F011841E3961900C816D30B2102C78942BE0C857590B866020D34C838A060DF124E42078C5E020079'),
(298, X'01000F0180074352439005525C6071C9E3595AC547010DCBEC3296813E00F0'),
(299, X'01000F014A8614A88401D3487A82E2'),
(301, X'01000F01A41E61A88048102E400C5E40CB0B68FC90260954949014AAE45E1D9702551308FA'),
(302, X'01000F0178DE441E34F51801F5052046650A5CF385F5EC4FC9D99088C03620070A19178589820090290081F0'),
(303, X'01000F01A87C7182421B510C11563D04D68A728144CE5F1D32E11D156B2BC136A246611BA9886D02A0D1310500D2424200EC'),
(304, NULL),
(305, X'01000F01A40E26C11069890CD7A6977812A5121DCA3024E2C06807680874'),
(306, X'01000F01AA9E25354891144A5A3652CAA590FFE0716522166B03308B5D6145FC506941908CAE496E050100BC8105403C'),
(307, X'01000F01'),
(308, X'01000F0134BB890203E600E24F30415951823B46C88FDD240156E8921D691293C1200320D44245F9'),
(309, X'01000F01443AD312096F80A48AD8B3E81C98C850A005C00A1B4B9838B0'),
(311, X'01000F01D0A88C52F8024E0C807A0045A5F0908DDEC269E2071BD90C200237883F7694E98B32109300902A8AE4FC'),
(312, NULL),
(313, NULL),
(314, X'01000F01FCBA8858E81445A8E07A004581F402C7DA0068B20611C91860823E9A2C7A91BD19F050AB00F02E8860AC'),
(315, X'01000F0118AA8042C23B4C8B2245382807D0A8CE365A'),
(316, X'01000F01C0B1004620C9D30F74105BD0A5A384015AB0504827E8'),
(317, X'01000F015C4D4E3A0E81383550647A3A261B1833951044A3A1FA17ACF80C724B23F05CB11B024241490CA174'),
(318, X'01000F010019900C4092200840A66E857F3C0DB6AB7BB4966DFC4F204DE40849A07081D8'),
(319, NULL),
(321, X'01000F01AC5AC5A0C844E03A4006FB40DC03692D939401D4B590BFAB94169CE600518C4058'),
(322, X'01000F01A86B022024040EE24492B4823CB0E155C18969D9'),
(323, X'01000F01BCF2CCD1040421AA02C14C8A40DF88D50FC997220E3AA2A527F907044981A80C8459'),
(324, X'01000F01E8BE1D909052944B48E212E86494984011A63874E81F65B11D4265AC42ECA31D88B6C1CE4E252028014181EC'),
(325, X'01000F01'),
(326, X'01000F0180C2000D154009490546A461267616E3E5BD587B08D4462090564095089517292FE024902D06047D'),
(327, X'01000F0168D4530071A5289490CD4BA0A386C00289714D8BA16F16BBFB01A888398869442287299031D11000A08D4090E8'),
(328, NULL),
(329, X'01000F01A85C11B2925F530891763DA4D6805219786C4B1A13F3051131B39612A02F210F8BC4C2C2E0D538000074264248AC'),
(331, X'01000F0154445EB8552A7A02B29DD030D072108C40'),
(332, X'01000F01E0A25130E9456820A461A1EB23B442508051461B0903384275'),
(333, X'01000F01741D1B1E08A4C8802924A256012E196529D4A081DC07B58D252A8835126A'),
(334, X'01000F01A2D9634412B6E2512688B40418223481E2325FCAF1894D58A936031A0FCC11F43702709A0A36600202010A2C2728D8'),
(335, NULL),
(336, NULL),
(337, X'01000F013666C021214217014BD47968E8'),
(338, X'01000F01FE83A50BD4B00881808814E9142DD6814563808630'),
(339, X'01000F01A0B97244642D847209AAB212744150D20212CB121D9DD40551425E4048C45BA2EDC80EC8A681713B2802802FC720685A'),
(341, X'01000F01F44E846512B0818057D51BB90F93420D1A340DA4C348A16818BC'),
(342, X'01000F01D9B22D68F4290A1088F8001815E5443CE692CE06EB9011D90022C0A5E58D5470D038553DEE00D0198F80A8'),
(343, X'01000F01'),
(344, NULL),
(345, X'01000F010C83481450D1C20F750230D1CDC7D41DDA7C50618468'),
(346, X'01000F0118BD01A58694112D1D3028F892145F695ABC92EA228A0629320711C424E0AA2A108A6000DA'),
(347, X'01000F01A1191104510AA929B4827F00F732015D593DD0D26D790222A875190CE2728558'),
(348, X'01000F01788462650D45435CE5801A86E5005DA24446C8'),
(349, NULL),
(351, X'01000F01F8A60A40F8544500B07A84C7C15C13C55AD068A19F11C928740BB3882C2291212770158480F07688A0EC'),
(352, NULL),
(353, X'01000F01F0E9841012F429151440505A04F43421DE1330B60AB0CCA4361A67C04ED01AF16DA7BD901531883FAC8D8124006089D414105A'),
(354, NULL),
(355, X'01000F01395FC91436F51891D51522166E4990EA85D1640BC1D71028C43622073A1B17858B980080095180F4'),
(356, X'01000F01382702A90228AAA64CA2A7225010D81B63E20B99EC0B643243E84A02711FCDAC1020C51D02D8'),
(357, X'01000F0130048E2521282090E960957DA6664BDA13100DD822ACB6064810861170'),
(358, X'01000F0180C022A2412D868A8085B803B841C0BB0319FA5A940BD107517067446A815FB22C88809A26223818AA2384351621485E'),
(359, X'01000F0178BAAD70F0392E7180DA113825651F68F41246376A1A119944EA425428853550D804544848407219CCC0EE'),
(361, X'01000F01'),
(362, X'01000F01A59A20A0C24C202061044E42A0097B7DC0A609759054FCBE6C173CD60A520B08F8'),
(363, X'01000F0114DF8BC2544681BA6D6A07B103EA8A4C0B0B51D01C815D101F5670D1C8561004D4708099'),
(364, X'01000F01C0BA8C1A7A100568AA38A06F801C93C45A434CD64748D1A8A4047B810CF250513230152420A4739984ED'),
(365, X'01000F01083402A44129002AD9069B1358C95167B32FE8939F8DDB00557E7AC4FBC40C860B00082AA6833C51880114157010244E'),
(366, X'01000F01AC4A87102C4502464B3EB38238F021054D8409C9'),
(367, X'01000F0170D99D1022E8516A5882085919DA93742B9FA8C05DC643476E0369C5EC054923CE95683BB24408760F7146700940A28CD0081056'),
(368, NULL),
(369, X'01000F0138AFB2E0453B8582908DF103D819D0B3811B83C2A03DD506591B27444A881F966C540A6AA2423C38AA620615B040081E'),
(371, X'01000F01A97CD1B252195308B1343D80D6024208684C6B1A33F315912133C214A027210FA9C86032E0D0310150F4266240EC'),
(372, X'01000F01007628031952800064419802FF42C27F814DDA588A4690057CE53E0460DCC30E030E840233A2F9'),
(373, X'01000F0164097D0D00CA410A8919AEA51A5242D1C1278036E40842A455AA15E0C30031'),
(374, X'01000F01D88AA87C9401083289EA01AA856515ACF696C2613B1155995278400F210D4034D804180943D4D88B0C502C'),
(375, X'01000F0138132DF1A41943AA0051480F82DD1891134D97820E57A1A731AF01161183A00C0579'),
(376, NULL),
(377, NULL),
(378, X'01000F01'),
(379, X'01000F01C8520B8341B0060034A2FCC9E7185398408D1C87AC20C4411E0C74'),
(381, X'01000F0154421290D43A6AC8939D72988070322452'),
(382, X'01000F01A17D2F45821EE29084C8B6046A903690406A4704E7A97C1284BE031231F758EC730B2198CC22A2940708495D3028A8'),
(383, X'01000F01D827100F26423D618650785E44315152060D19541A8802A652007210B5'),
(384, NULL),
(385, X'01000F0164538D902AC2C1EA08A24ADC11C81220A15CB8F07D8266C36A1325C58EA01192DD05301F2A411E76043248500000A086C44C1056'),
(386, X'01000F017C42740D2948D10AAF5007050F504250D2241634A498C226C19091E5551832'),
(387, X'01000F0192A9130A380112062E700AE2E312E201D3841E2586BB103CC50018C4729872'),
(388, X'01000F01202D5480879418689CC0280817D05BD990F691482629021FA947450605348A2A00EA0187F0'),
(389, X'01000F0198BF9D50A4218A50AADE91108585D424D65ACE676B181599446AC805A10D55E0D985541A494850014D50EC'),
(391, X'01000F0170DA4E34748C3004B216C043204BE0A84AAD6F7F10910D28349A02A4DB22FECD84E14828400588A1F4'),
(392, NULL),
(393, X'01000F01A87419604A0F515262502F859E82121358E46B483EF805312B3B901AB926610FA9826012A5C919051050844008EE'),
(394, X'01000F01F04F009ECC24E1802B66A276410E19652894E0859D07A7A0290E013112A0'),
(395, X'01000F01B5324AC00102AA88836C504D7AFC65947D842C53F24056A424614E825B8A405CD30679'),
(396, X'01000F01'),
(397, X'01000F0196BB46308A42DD1DA439D6C04D940002256260'),
(398, X'01000F0131E966EAAB520C05A192CA0E284E41461AD8D92433B8DC6F10A97484488590632216488082B90C065C5401826C98012C4A'),
(399, X'01000F01D5A5A1058A801A783501D14F7CAF2505682885EB818A0E41221C2462'),
(401, X'01000F01F44B129C2B09BB4B269E08E58A526201C6140A24A592D26C513603C01811E2'),
(402, X'01000F01B29020B8D244606C640C0A83BC4B093894A469D5DC869C05EC3F5CA20175090A58'),
(403, X'01000F0140DFA5941C52947CB709374A84938AA718FDB4C002B612C876001DBA60504B26730120860A93D8'),
(404, X'01000F01594B44103EC0089545553212621504FFC5B3C20289FB14AA804FA2C52A0816808BF202CAC91A2134'),
(405, X'01000F01B8F60848D8544708287A0044040743C55EC478B02751C3207402B38E7D5001111770156585E186C030EC'),
(406, X'01000F01D8B60A48E810C500286A004540E742E75A8449A00751C9086406360C3D7B0175377014E681B5E28032CC'),
(407, X'01000F018C9744D1C83949FE00550405AA9D98DB0BC996880C5EABC704B184861183AA000C91'),
(408, NULL),
(409, X'01000F01CC2517058413AE500751449F40C491F343A7E93A40008C36ED909A1161'),
(411, X'01000F0174B329430B56489A0E10C611C2D82FC7C80FA3354118C8909C4950528860468056420479'),
(412, NULL),
(413, X'01000F01A81768B55815150256240A6A25E46A20317335068305C5C1716B01EDD3C001116430352E885544A8C1B6D05C'),
(414, X'01000F01'),
(415, X'01000F01A41A2564C14462316206E1C2B40B793D82A40955A114DF2FCC72ACC204550D8911'),
(416, NULL),
(417, X'01000F01A412D4D802112DE34455CA0C0B3BC211836193A8023AA22785FD0F06A3007894843B'),
(418, X'01000F01489A863868028739A17C824F81F403815A4268D28331D99E641337881D7A01D81F7A52A000A4228A404C'),
(419, X'01000F012C534CD1969141AA0051E44A22DFC8D9074D96A00E72A03321B2450E1901A88C0579'),
(421, X'01000F01081C1800ADC790595D83E0'),
(422, X'01000F0176C5D202115494A0115D322C6D0FAC22830295541AB21AB2'),
(423, X'01000F014C6F2181A4098A0449828D2A5A607C02AB694F99FC9340BAE5A850836107892C5220742882B0'),
(424, NULL),
(425, X'01000F01D0E46472E8354684'),
(426, X'01000F01410781C2005672A3'),
(427, X'01000F010011E0BD5F2420'),
(428, X'01000F0110146D333B2A'),
(429, X'01000F010068B5943C'),
(431, X'01000F01'),
(432, NULL),
(433, X'01000F01308206152D1638003F9422C3932F10AC8980B2050BA3DE0AA88B46301A191931A0985041895339550C'),
(434, X'01000F01C88A2B5A04CDA41191'),
(435, X'01000F010104DFD600'),
(436, X'01000F011188A09B194F08'),
(437, X'01000F01EEC6045C548AC9'),
(438, X'01000F0104850F8C'),
(439, X'01000F01DB222009B81D2C28E0'),
(441, X'01000F01959420CE383A324919EB'),
(442, X'01000F01418476E248388DEC4592'),
(443, X'01000F0135CA84B06C69D0D3E00035'),
(444, X'01000F0131CAC420EC69D0D3F00031'),
(445, X'01000F0127FF850030DCD24EE8A1084A50CD'),
(446, X'01000F0113179501B0A29805A11C'),
(447, X'01000F018B0712D2802B082B');
INSERT INTO "OVNote_text_signature" ("pk") SELECT "pk" FROM "OVNote_large" WHERE "pk" NOT IN (SELECT "pk" FROM "OVNote_text_signature") ORDER BY "pk";
INSERT INTO "OVNote_text_changes" ("change", "pk") VALUES
(1, 3),
(2, 77777),
(9, 1001);
CREATE UNIQUE INDEX "OVNote_tags_member" ON "OVNote_tags" ("member", "owner");
CREATE INDEX "OVNote_uniqueIdentifier" ON "OVNote" ("uniqueIdentifier");
CREATE INDEX "OVNote_title_folded" ON "OVNote" ("title_folded");
CREATE INDEX "OVNote_title_stale" ON "OVNote" ("title_folded") WHERE "title_folded" IS NULL AND "title" IS NOT NULL;
CREATE TRIGGER "OVNote_title_stale" AFTER UPDATE OF "title" ON "OVNote" WHEN NEW."title" IS NOT OLD."title" AND NEW."title_folded" IS OLD."title_folded" BEGIN UPDATE "OVNote" SET "title_folded" = NULL WHERE "pk" = NEW."pk"; END;
CREATE INDEX "OVNote_pinnedInTag" ON "OVNote" ("pinnedInTag");
CREATE INDEX "OVNote_password" ON "OVNote" ("password");
CREATE INDEX "OVNote_serverData" ON "OVNote" ("serverData");
CREATE INDEX "OVNote_pinned_modificationDate_trashed_archived" ON "OVNote" ("pinned" DESC, "modificationDate" DESC, "trashed", "archived");
CREATE INDEX "OVNote_trashed_archived" ON "OVNote" ("trashed", "archived");
CREATE INDEX "OVNoteTag_uniqueIdentifier" ON "OVNoteTag" ("uniqueIdentifier");
CREATE INDEX "OVNoteTag_title_folded" ON "OVNoteTag" ("title_folded");
CREATE INDEX "OVNoteTag_title_stale" ON "OVNoteTag" ("title_folded") WHERE "title_folded" IS NULL AND "title" IS NOT NULL;
CREATE TRIGGER "OVNoteTag_title_stale" AFTER UPDATE OF "title" ON "OVNoteTag" WHEN NEW."title" IS NOT OLD."title" AND NEW."title_folded" IS OLD."title_folded" BEGIN UPDATE "OVNoteTag" SET "title_folded" = NULL WHERE "pk" = NEW."pk"; END;
CREATE INDEX "OVNoteFile_uniqueIdentifier" ON "OVNoteFile" ("uniqueIdentifier");
CREATE INDEX "OVNoteFile_note" ON "OVNoteFile" ("note");
CREATE INDEX "OVNoteFile_password" ON "OVNoteFile" ("password");
CREATE INDEX "OVNoteFile_serverData" ON "OVNoteFile" ("serverData");
CREATE INDEX "OVNoteFile_uploaded_downloaded" ON "OVNoteFile" ("uploaded", "downloaded");
CREATE INDEX "OVNoteBackLink_uniqueIdentifier" ON "OVNoteBackLink" ("uniqueIdentifier");
CREATE INDEX "OVNoteBackLink_title_folded" ON "OVNoteBackLink" ("title_folded");
CREATE INDEX "OVNoteBackLink_title_stale" ON "OVNoteBackLink" ("title_folded") WHERE "title_folded" IS NULL AND "title" IS NOT NULL;
CREATE TRIGGER "OVNoteBackLink_title_stale" AFTER UPDATE OF "title" ON "OVNoteBackLink" WHEN NEW."title" IS NOT OLD."title" AND NEW."title_folded" IS OLD."title_folded" BEGIN UPDATE "OVNoteBackLink" SET "title_folded" = NULL WHERE "pk" = NEW."pk"; END;
CREATE INDEX "OVNoteBackLink_linkedBy" ON "OVNoteBackLink" ("linkedBy");
CREATE INDEX "OVNoteBackLink_linkingTo" ON "OVNoteBackLink" ("linkingTo");
CREATE INDEX "OVPassword_uniqueIdentifier" ON "OVPassword" ("uniqueIdentifier");
CREATE INDEX "OVChange_token" ON "OVChange" ("token");
CREATE INDEX "OVChange_order" ON "OVChange" ("order");
CREATE INDEX "OVChangeItem_change" ON "OVChangeItem" ("change");
CREATE INDEX "OVInternalChanges_changeType" ON "OVInternalChanges" ("changeType");
CREATE TRIGGER IF NOT EXISTS "OVNote_version" AFTER UPDATE ON "OVNote" WHEN NEW."rowVersion" IS OLD."rowVersion" AND NEW."title_folded" IS OLD."title_folded" BEGIN UPDATE "OVNote" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNote_large_version" AFTER UPDATE ON "OVNote_large" BEGIN UPDATE "OVNote" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteTag_version" AFTER UPDATE ON "OVNoteTag" WHEN NEW."rowVersion" IS OLD."rowVersion" AND NEW."title_folded" IS OLD."title_folded" BEGIN UPDATE "OVNoteTag" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteTag_large_version" AFTER UPDATE ON "OVNoteTag_large" BEGIN UPDATE "OVNoteTag" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteFile_version" AFTER UPDATE ON "OVNoteFile" WHEN NEW."rowVersion" IS OLD."rowVersion" BEGIN UPDATE "OVNoteFile" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteFile_large_version" AFTER UPDATE ON "OVNoteFile_large" BEGIN UPDATE "OVNoteFile" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteBackLink_version" AFTER UPDATE ON "OVNoteBackLink" WHEN NEW."rowVersion" IS OLD."rowVersion" AND NEW."title_folded" IS OLD."title_folded" BEGIN UPDATE "OVNoteBackLink" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteBackLink_large_version" AFTER UPDATE ON "OVNoteBackLink_large" BEGIN UPDATE "OVNoteBackLink" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVPassword_version" AFTER UPDATE ON "OVPassword" WHEN NEW."rowVersion" IS OLD."rowVersion" BEGIN UPDATE "OVPassword" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVChange_version" AFTER UPDATE ON "OVChange" WHEN NEW."rowVersion" IS OLD."rowVersion" BEGIN UPDATE "OVChange" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVChangeItem_version" AFTER UPDATE ON "OVChangeItem" WHEN NEW."rowVersion" IS OLD."rowVersion" BEGIN UPDATE "OVChangeItem" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVInternalChanges_version" AFTER UPDATE ON "OVInternalChanges" WHEN NEW."rowVersion" IS OLD."rowVersion" BEGIN UPDATE "OVInternalChanges" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVExternalChanges_version" AFTER UPDATE ON "OVExternalChanges" WHEN NEW."rowVersion" IS OLD."rowVersion" BEGIN UPDATE "OVExternalChanges" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVServerMetadata_version" AFTER UPDATE ON "OVServerMetadata" WHEN NEW."rowVersion" IS OLD."rowVersion" BEGIN UPDATE "OVServerMetadata" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteServerData_version" AFTER UPDATE ON "OVNoteServerData" WHEN NEW."rowVersion" IS OLD."rowVersion" BEGIN UPDATE "OVNoteServerData" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteServerData_large_version" AFTER UPDATE ON "OVNoteServerData_large" BEGIN UPDATE "OVNoteServerData" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteFileServerData_version" AFTER UPDATE ON "OVNoteFileServerData" WHEN NEW."rowVersion" IS OLD."rowVersion" BEGIN UPDATE "OVNoteFileServerData" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE TRIGGER IF NOT EXISTS "OVNoteFileServerData_large_version" AFTER UPDATE ON "OVNoteFileServerData_large" BEGIN UPDATE "OVNoteFileServerData" SET "rowVersion" = "rowVersion" + 1 WHERE "pk" = NEW."pk"; END;
CREATE INDEX IF NOT EXISTS "OVNote_encrypted_flagged" ON "OVNote" ("encrypted") WHERE "encrypted" = 1;
CREATE TRIGGER IF NOT EXISTS "OVNote_text_signature_insert" AFTER INSERT ON "OVNote_large" BEGIN UPDATE "OVNote_text_signature" SET "signature" = NULL WHERE "pk" = NEW."pk"; INSERT INTO "OVNote_text_signature" ("pk") SELECT NEW."pk" WHERE NOT EXISTS (SELECT 1 FROM "OVNote_text_signature" WHERE "pk" = NEW."pk"); INSERT INTO "OVNote_text_changes" ("pk") VALUES (NEW."pk"); END;
CREATE TRIGGER IF NOT EXISTS "OVNote_text_signature_update" AFTER UPDATE OF "pk", "text" ON "OVNote_large" BEGIN DELETE FROM "OVNote_text_signature" WHERE "pk" = OLD."pk" AND OLD."pk" <> NEW."pk"; UPDATE "OVNote_text_signature" SET "signature" = NULL WHERE "pk" = NEW."pk"; INSERT INTO "OVNote_text_signature" ("pk") SELECT NEW."pk" WHERE NOT EXISTS (SELECT 1 FROM "OVNote_text_signature" WHERE "pk" = NEW."pk"); INSERT INTO "OVNote_text_changes" ("pk") VALUES (NEW."pk"); END;
CREATE TRIGGER IF NOT EXISTS "OVNote_text_signature_delete" AFTER DELETE ON "OVNote_large" BEGIN DELETE FROM "OVNote_text_signature" WHERE "pk" = OLD."pk"; INSERT INTO "OVNote_text_changes" ("pk") VALUES (OLD."pk"); END;
CREATE TRIGGER IF NOT EXISTS "OVNote_text_signature_lost" AFTER DELETE ON "OVNote_text_signature" WHEN EXISTS (SELECT 1 FROM "OVNote_large" WHERE "pk" = OLD."pk") BEGIN INSERT INTO "OVNote_text_signature" ("pk") VALUES (OLD."pk"); INSERT INTO "OVNote_text_changes" ("pk") VALUES (OLD."pk"); END;
COMMIT;
