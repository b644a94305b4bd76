-- A store of "Model". Written by write_golden_stores; see tests/golden/main.cpp.
PRAGMA page_size = 8192;
BEGIN;
CREATE TABLE "store_metadata" ("key" TEXT PRIMARY KEY, "value" TEXT) WITHOUT ROWID;
CREATE TABLE "store_keys" ("entity" TEXT PRIMARY KEY, "nextKey" INTEGER NOT NULL) WITHOUT ROWID;
CREATE TABLE "OVNote" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "uniqueIdentifier" TEXT, "title" TEXT, "subtitle" TEXT, "creationDate" INTEGER, "modificationDate" INTEGER, "lastEditingDevice" TEXT, "version" INTEGER, "archived" INTEGER, "archivedDate" INTEGER, "trashed" INTEGER, "trashedDate" INTEGER, "permanentlyDeleted" INTEGER, "pinned" INTEGER, "pinnedDate" INTEGER, "locked" INTEGER, "lockedDate" INTEGER, "order" INTEGER, "orderDate" INTEGER, "skipSync" INTEGER, "hasFiles" INTEGER, "hasImages" INTEGER, "todoCompleted" INTEGER, "todoIncompleted" INTEGER, "serverModificationDate" INTEGER, "serverData" INTEGER REFERENCES "OVNoteServerData" ("pk") DEFERRABLE INITIALLY DEFERRED, "title_folded" TEXT);
CREATE TABLE "OVNote_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNote" ("pk") DEFERRABLE INITIALLY DEFERRED, "text" TEXT);
CREATE TABLE "OVNoteTag" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "uniqueIdentifier" TEXT, "name" TEXT, "modificationDate" INTEGER, "version" INTEGER, "isRoot" INTEGER, "pinned" INTEGER, "pinnedDate" INTEGER, "sorting" INTEGER, "sortingDate" INTEGER, "sortingDirection" INTEGER, "sortingDirectionDate" INTEGER, "name_folded" TEXT);
CREATE TABLE "OVNoteTag_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNoteTag" ("pk") DEFERRABLE INITIALLY DEFERRED, "serverData" BLOB);
CREATE TABLE "OVNoteFile" ("pk" INTEGER PRIMARY KEY, "entity" TEXT NOT NULL, "rowVersion" INTEGER NOT NULL, "uniqueIdentifier" TEXT, "filename" TEXT, "normalizedFileExtension" TEXT, "fileSize" REAL, "index" INTEGER, "creationDate" INTEGER, "modificationDate" INTEGER, "insertionDate" INTEGER, "lastEditingDevice" TEXT, "version" INTEGER, "downloaded" INTEGER, "uploaded" INTEGER, "uploadedDate" INTEGER, "unused" INTEGER, "unusedDate" INTEGER, "permanentlyDeleted" INTEGER, "skipSync" INTEGER, "note" INTEGER REFERENCES "OVNote" ("pk") DEFERRABLE INITIALLY DEFERRED, "serverData" INTEGER REFERENCES "OVNoteFileServerData" ("pk") DEFERRABLE INITIALLY DEFERRED, "width" INTEGER, "height" INTEGER);
CREATE TABLE "OVChange" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "token" TEXT, "order" INTEGER);
CREATE TABLE "OVChangeItem" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "itemEntity" TEXT, "uniqueIdentifier" TEXT, "itemDeleted" INTEGER, "change" INTEGER REFERENCES "OVChange" ("pk") DEFERRABLE INITIALLY DEFERRED);
CREATE TABLE "OVInternalChanges" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "changeType" TEXT, "itemChange" INTEGER, "itemObjectID" TEXT);
CREATE TABLE "OVServerMetadata" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL, "noteZoneIDData" BLOB, "serverChangeTokenData" BLOB, "noteZoneSubscriptionID" TEXT);
CREATE TABLE "OVNoteServerData" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL);
CREATE TABLE "OVNoteServerData_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNoteServerData" ("pk") DEFERRABLE INITIALLY DEFERRED, "systemFields" BLOB);
CREATE TABLE "OVNoteFileServerData" ("pk" INTEGER PRIMARY KEY, "rowVersion" INTEGER NOT NULL);
CREATE TABLE "OVNoteFileServerData_large" ("pk" INTEGER PRIMARY KEY REFERENCES "OVNoteFileServerData" ("pk") DEFERRABLE INITIALLY DEFERRED, "systemFields" BLOB);
CREATE TABLE "OVNote_tags" ("owner" INTEGER NOT NULL REFERENCES "OVNote" ("pk") DEFERRABLE INITIALLY DEFERRED, "member" INTEGER NOT NULL REFERENCES "OVNoteTag" ("pk") DEFERRABLE INITIALLY DEFERRED, PRIMARY KEY ("owner", "member")) WITHOUT ROWID;
INSERT INTO "store_metadata" ("key", "value") VALUES
('storeUUID', '6F1C0B1E-7A52-4B0D-9E57-0C5A9C3D1E20'),
('formatVersion', '1'),
('modelVersion', 'Model'),
('foldingVersion', '69120'),
('host.lastBackup', '2021-03-14T15:09:26Z, Zoë''s "disk"'),
('host.empty', ''),
('entityHash.OVChange', '8c73b4f8909929d3'),
('entityHash.OVChangeItem', '1a826630e4031660'),
('entityHash.OVInternalChanges', 'd9fcff01a9b50aeb'),
('entityHash.OVNote', '579c4d2c26f50773'),
('entityHash.OVNoteFile', 'dccda2d5710a22fb'),
('entityHash.OVNoteFileServerData', '74a9e7b14b5e98a5'),
('entityHash.OVNoteGenericFile', 'fe4f51e84dcead68'),
('entityHash.OVNoteImage', '0be7758ea0b86353'),
('entityHash.OVNoteServerData', 'bbd0d6071b69ff93'),
('entityHash.OVNoteTag', '3ac77d0ce5196ec7'),
('entityHash.OVServerMetadata', 'ccb6a966e7355e89');
INSERT INTO "OVNote" ("pk", "rowVersion", "uniqueIdentifier", "title", "subtitle", "creationDate", "modificationDate", "lastEditingDevice", "version", "archived", "archivedDate", "trashed", "trashedDate", "permanentlyDeleted", "pinned", "pinnedDate", "locked", "lockedDate", "order", "orderDate", "skipSync", "hasFiles", "hasImages", "todoCompleted", "todoIncompleted", "serverModificationDate", "serverData", "title_folded") VALUES
(1, 2, 'D7D7E9F1-F7DE-4056-8DE9-89073F3D1639', 'It''s "quoted"', '''''; DROP TABLE "OVNote"; --', 1700000000001000, 1700000000003000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'it''s "quoted"'),
(2, 3, '95313903-C418-412B-8C1A-34506D7329D2', 'Back\slash \ C:\new\table', '\n \0 '' %s %d {} {0} ?1 :name @name $name', 1700000000004000, 1700000000005000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'back\slash \ c:\new\table'),
(3, 4, '0F40C419-6FE2-4787-9A99-681609C3E77E', CAST(X'4E554C200020696E2061207469746C65' AS TEXT), CAST(X'616E6420000020696E20612074657874' AS TEXT), 1700000000006000, 1700000000007000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000007000, NULL, CAST(X'6E756C200020696E2061207469746C65' AS TEXT)),
(4, 5, '177D649B-A539-43A6-8820-A20A178FEF57', CAST(X'00' AS TEXT), '', 1700000000008000, 1700000000009000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, CAST(X'00' AS TEXT)),
(5, 1, '19C7F35C-4ABE-4EA0-9897-B741714D0380', CAST(X'4E554C200020616E64207468656E' AS TEXT), '#behind/nul Groceries', 1700000000010000, 1700000000014000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, NULL, NULL, CAST(X'6E756C200020616E64207468656E' AS TEXT)),
(6, 2, '52736182-ECDC-4762-8AB6-60E952D6C6C2', CAST(X'436F6E74726F6C732001021B5B306D7F' AS TEXT), CAST(X'62656C6C20072C20666F726D2066656564200C2C20766572746963616C20746162' AS TEXT), 1700000000015000, 1700000000016000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000016000, NULL, CAST(X'636F6E74726F6C732001021B5B306D7F' AS TEXT)),
(7, 3, '47E7B036-0F85-41AA-9476-B016E58DF172', 'Line ends', 'of another system', 1700000000017000, 1700000000019000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 1, 1, NULL, NULL, NULL),
(8, 4, '8E8DD474-2B86-4DB8-BB8F-18FB89C2C735', 'Old line ends', 'of a third', 1700000000020000, 1700000000021000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'old line ends'),
(9, 5, '45A465F8-1528-4DDB-B171-2FCDA8CE2D57', 'A byte order mark', 'in front', 1700000000022000, 1700000000023000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000023000, NULL, 'a byte order mark'),
(11, 2, '909CEA2D-C374-42CE-AE80-9D3F4B23B5DD', 'Separators of lines and paragraphs', '', 1700000000024000, 1700000000025000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'separators of lines and paragraphs'),
(12, 3, '2182D453-3036-40FD-9C37-D21F1CDE4A88', '🎉 Emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴', '🧵 #🎉 #party/🥳 Groceries', 1700000000026000, 1700000000031000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000031000, NULL, '🎉 emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴'),
(13, 4, 'CE91A7A3-D19C-4626-A9CA-CD4699E6F030', 'שלום עולם', 'טקסט מימין לשמאל, ‏12‎ #עברית', 1700000000032000, 1700000000034000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'שלום עולם'),
(14, 5, '7B44970E-BF15-4E7C-83B8-58D0AE36CF47', 'مرحبا بالعالم', 'الحليب ، الخبز', 1700000000035000, 1700000000038000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, NULL, NULL, NULL),
(15, 1, '5B70FD45-E2A1-4B9A-B8C5-4934591B2B01', 'Café and café', 'Z͑ͯ̓a̢̡l̵go̢ ȩ̣́ #café', 1700000000039000, 1700000000041000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000041000, NULL, 'café and café'),
(16, 2, 'E653EFB0-3DC6-4DA4-9796-C27ADCF9EA5F', 'Left over �� of halves', 'of pairs �', 1700000000042000, 1700000000043000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'left over �� of halves'),
(17, 3, '3589A9B9-586D-46DD-B4CC-526A8B692470', 'Astral 𝕏 𐍈 𠜎', '𝟘𝟙𝟚 #𝔱𝔞𝔤', 1700000000044000, 1700000000046000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'astral 𝕏 𐍈 𠜎'),
(18, 4, '1B481C82-E38D-4979-A4E4-A812E1A63FF3', 'İstanbul ıspanak STRASSE ß ẞ ﬁ Ǆ', 'folded #İzmir #ıspanak', 1700000000047000, 1700000000050000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000050000, NULL, 'i̇stanbul ıspanak strasse ss ss fi ǆ'),
(19, 5, '57CBA3BF-7B20-4E5B-B1E6-7A809661C6A4', 'Zero​width‍ and blanks　of all kinds', '­', 1700000000051000, 1700000000052000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'zero​width‍ and blanks　of all kinds'),
(21, 2, '921B9CE5-3466-42DE-B932-2E07D510E79D', '日本語の題名', '本文です。#日本/料理', 1700000000053000, 1700000000054000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 1, 1, 1700000000054000, NULL, NULL),
(22, 3, '8BBDFBFA-0E68-4E88-A8B0-9E97C2DCC0E7', '한국어', '한글 조합형 한 #한국', 1700000000055000, 1700000000057000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '한국어'),
(23, 4, '384E57FA-75D1-4AC8-B0F5-138C994D1004', '', '', 1700000000058000, 1700000000059000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(24, 5, 'D8769BB2-4483-4A0C-824C-60603D8F64FA', '', '', 1700000000060000, 1700000000061000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000061000, NULL, ''),
(25, 1, '4A8C929E-BB85-405F-A0BC-ABEC1FEB632C', '', '', 1700000000062000, 1700000000063000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(26, 2, '18BE4F15-934D-4104-A77C-43A2A22A4ED2', '', '', 1700000000064000, 1700000000065000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(27, 3, '66267AB0-7AD1-4E05-BAE6-DBF58828C505', '', '', 1700000000066000, 1700000000067000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000067000, NULL, ''),
(28, 4, '07CE2569-4E21-4BB3-8D1E-ABAE094303C3', '', '', 1700000000068000, 1700000000069000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(29, 5, '3661BFE3-501C-45C0-A5DD-924E67C6DC34', '', '', 1700000000070000, 1700000000071000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(31, 2, '8AA02E3F-7BDD-42A4-9DF8-271C361DB767', '', '', 1700000000072000, 1700000000073000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(32, 3, '5A9BBC6A-8C91-475B-877C-D3B833A0CC3E', '[[', '', 1700000000074000, 1700000000075000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '[['),
(33, 4, '66B3601E-9605-4B5F-A996-CC746D16E692', ']]', '', 1700000000076000, 1700000000077000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000077000, NULL, ']]'),
(34, 5, 'DD1D1234-7A1F-41E2-9379-DDADEBB3560F', '', '', 1700000000078000, 1700000000080000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(35, 1, '5D0FB3E2-562D-43BF-AA96-6D67D2A8AC90', '', '', 1700000000081000, 1700000000084000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(36, 2, 'B44C44AD-C059-4807-87F6-213A07A28485', '', '', 1700000000085000, 1700000000086000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000086000, NULL, ''),
(37, 3, 'BD7667B2-4CAD-4E60-9572-7D5C47DCEF99', '', '', 1700000000087000, 1700000000088000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(38, 4, 'E9F76101-0D74-46D5-9BA6-D4A101FE9FF5', '', '', 1700000000089000, 1700000000090000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(39, 5, '7172261C-CB72-431F-B342-43A04AA0E105', 'Fenced', 'int main() { return ''\''''; }', 1700000000091000, 1700000000092000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000092000, NULL, 'fenced'),
(41, 2, '00A56E48-AB6C-4890-BD60-E0299815F99B', 'Fenced with tildes', '[[Groceries]] #notag', 1700000000093000, 1700000000094000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'fenced with tildes'),
(42, 3, '2E233E44-3E7D-40F9-AD58-6673AA399920', 'Indented', '[[Groceries]]', 1700000000095000, 1700000000096000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000096000, NULL, NULL),
(43, 4, '6821F686-C133-4F87-BB8D-7F839C8F1D42', 'Indented by a tab', 'code', 1700000000097000, 1700000000098000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'indented by a tab'),
(44, 5, 'EF3DD360-3AD2-48FA-A21E-B960B1FC2E53', 'In a list', 'item', 1700000000099000, 1700000000100000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'in a list'),
(45, 1, '2914F828-78FE-4EB2-B8F6-84097C80DA95', 'In a quote', 'code', 1700000000101000, 1700000000102000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000102000, NULL, 'in a quote'),
(46, 2, 'FB4A95F6-A177-4625-AB67-215FA9C745C6', 'Spans only', 'code and two ` ticks and three in a line', 1700000000103000, 1700000000104000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'spans only'),
(47, 3, '17D66A27-1F25-46B8-979C-A4420AD48010', 'A paragraph', 'goes on indented', 1700000000105000, 1700000000106000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'a paragraph'),
(48, 4, '1E83FCCE-6CBB-4579-B0F3-76C531CA6BAE', 'Deep list', 'one', 1700000000107000, 1700000000108000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000108000, NULL, 'deep list'),
(49, 5, '9BA14844-27A0-4F61-8721-BE0E4DAB3D55', CAST(X'5461627309696E096C696E6573' AS TEXT), CAST(X'6109622020202063' AS TEXT), 1700000000109000, 1700000000110000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(51, 2, '240CFAB5-761A-42E5-BA7F-E30CE96319E5', 'Shopping', 'milk', 1700000000111000, 1700000000112000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 3, 3, 1700000000112000, NULL, 'shopping'),
(52, 3, '81ECA96B-3737-408F-9C28-3C46B1B2A0DA', 'a to-do for a title', 'and another', 1700000000113000, 1700000000114000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'a to-do for a title'),
(53, 4, '143426C1-D0B9-4459-93DE-40FF2A2F9561', 'Tags', '#a/b/c #a/b #A/B/C #closed tag# (#in-parentheses) x#none #none #home/kitchen, #ideas!', 1700000000115000, 1700000000122000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'tags'),
(54, 5, '056FAA2E-15B3-4549-AA8D-92972DDF7D34', '#first line of tags', 'The title below', 1700000000123000, 1700000000126000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000126000, NULL, '#first line of tags'),
(55, 1, 'F5614BBB-424A-4B05-9AC3-1F0B83B6810D', 'Many levels', '', 1700000000127000, 1700000000136000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'many levels'),
(56, 2, '8689A4F6-D7BB-48B5-9712-6A1543FD0E14', 'Setext title', 'and text', 1700000000137000, 1700000000138000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(57, 3, 'EB7CD509-2AC2-446B-903A-4D2A234B9CEA', 'Quoted title', 'quoted', 1700000000139000, 1700000000140000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, 1700000000140000, NULL, 'quoted title'),
(58, 4, '5522ACEA-F6DC-4288-9E40-CD12A6F48BB8', 'A link and an image', 'https://example.com r', 1700000000141000, 1700000000142000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'a link and an image'),
(59, 5, 'B4D34CC4-ED19-4863-851F-3B3E1D427B20', 'Emphasis strong gone marked code & © *', 'raw', 1700000000143000, 1700000000144000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'emphasis strong gone marked code & © *'),
(61, 2, '47F9BCFC-5DC8-4B61-9D44-263C61F60943', '| a | b |', '|---|---| | 1 | x|y |', 1700000000145000, 1700000000147000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '| a | b |'),
(62, 3, 'E44CB4FA-2653-406F-A44A-469AE4B91E63', '1986. A great year', '', 1700000000148000, 1700000000149000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '1986. a great year'),
(63, 4, 'C02692DF-29F2-4F39-B0AA-71F2B49640C6', '[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[x]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]', '', 1700000000150000, 1700000000152000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000152000, NULL, NULL),
(64, 5, '12BCFDD2-E63B-4571-BEF2-F7A69744C5BD', 'deep', '', 1700000000153000, 1700000000154000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'deep'),
(65, 1, '57C213F7-A411-45CD-AA78-F39AF1A00888', 'A long day', 'It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. ', 1700000000155000, 1700000000156000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'a long day'),
(66, 2, '94EE4452-36F8-457F-A7DD-F7CA59175EDA', '🎉 A long feast', '🧁 for Zoë', 1700000000157000, 1700000000159000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 32767, 1700000000159000, NULL, '🎉 a long feast'),
(67, 3, '435DEA84-9C23-45D2-A6CD-AE4E6986DB50', 'A long program', 'it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code ', 1700000000160000, 1700000000161000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'a long program'),
(68, 4, '94973FE3-C706-45C0-B25A-09695CC3F255', '', '', 1700000000162000, 1700000000163000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(69, 5, 'EF21C779-88E7-4321-A77E-63BD07FD3BA9', 'Entry 0', 'naïve план rain Kitchen Kitchen.', 1420156800123456, 1700000000167000, 'Zoë’s "old" telephone 📱', 1, 1, 1700000001117000, 1, 1700000001119000, 1, 1, 1700000001116000, 1, 1700000001120000, -100, NULL, 1, 1, 1, 1, 2, 1700000000167000, NULL, 'entry 0'),
(71, 2, '5F1D6716-B8F7-4A2A-881F-8C5287D7883D', 'Entry 1', 'çay window çay ποίημα çay letter quince rain rain coat.', 1420243200123456, 1700000000170000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 9223372036854775807, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 1'),
(72, 3, '791AF462-ED2F-47E8-A3F4-90D7EFDACE57', 'Entry 2', 'naïve garden 東京 garden straße 서울 tea coat 東京.', 1420329600123456, 1700000000174000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -9223372036854775808, NULL, 0, 0, 0, 1, 2, 1700000000174000, NULL, 'entry 2'),
(73, 4, 'DFE6F94F-59E9-4FEE-B8F2-21A6DCEB948E', 'Entry 3', 'rain rain bread план river 東京 river naïve bread Kitchen.', 1420416000123456, -62135596800000000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -97, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 3'),
(74, 5, '5A539A9A-73B4-4707-BEE3-9F4FDCCCAE57', 'Entry 4', 'naïve 서울 letter ποίημα 東京 clock.', 1420502400123456, 253402300799999999, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -96, NULL, 0, 0, 0, 1, 0, NULL, 1, 'entry 4'),
(75, 1, '5EC00EE1-342C-40C0-AD6D-FB9ED2E40A2D', 'Entry 5', 'план quince ποίημα coat ποίημα garden mañana 서울 letter.', 1420588800123456, -1, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -95, NULL, 0, 0, 0, 2, 0, -1, NULL, 'entry 5'),
(76, 2, 'D84E6763-3B61-4AC0-855A-4C37F12A14EE', 'Entry 6', 'Übung tea coat çay ladder.', 1420675200123456, 1700000000188000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -94, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 6'),
(77, 3, '58C4125C-B1D3-4F11-BD87-7CE7C03782DA', 'Entry 7', 'naïve coat çay clock.', 1420761600123456, 1700000000190000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -93, NULL, 0, 1, 1, 1, 1, NULL, NULL, NULL),
(78, 4, 'F38410CD-441E-44D4-A462-BBF2E41F6CA3', 'Entry 8', 'ladder clock letter.', 1420848000123456, 1700000000192000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -92, NULL, 0, 0, 0, 0, 1, 1700000000192000, NULL, 'entry 8'),
(79, 5, 'A0323305-2180-491F-A358-BC268B2CAB07', 'Entry 9', 'ladder план план quince.', 1420934400123456, 1700000000196000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -91, NULL, 0, 0, 0, 0, 1, NULL, 2, 'entry 9'),
(81, 2, '3DC013AC-573D-4578-803F-5ED481ED54EA', 'Entry 10', 'window bread mañana mañana tea Ærø Übung çay.', 1421020800123456, 1700000000199000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -90, NULL, 0, 0, 0, 0, 1, 1700000000199000, NULL, 'entry 10'),
(82, 3, 'D9A3399F-FA27-4E71-9DB0-6E0D138F61A9', 'Entry 11', 'letter window bread 서울 Ærø.', 1421107200123456, 1700000000201000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001121000, 0, NULL, -89, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 11'),
(83, 4, 'A3197DB3-2296-4177-A33D-CE87A08343DF', 'Entry 12', 'garden letter window.', 1421193600123456, 1700000000204000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -88, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 12'),
(84, 5, '683EBE2F-1BC7-48AA-8E5D-B392CE0AA3B1', 'Entry 13', 'Kitchen river ποίημα 東京 Kitchen Ærø rain quince план river.', 1421280000123456, 1700000000206000, 'Zoë’s test machine', 1, 1, 1700000001124000, 0, 1700000001125000, 0, 0, NULL, 0, NULL, -87, NULL, 0, 0, 0, 1, 1, 1700000000206000, NULL, NULL),
(85, 1, 'DD4FF9D9-8405-4964-A8D6-9DFBB5D0481D', 'Entry 14', '서울 garden river ποίημα rain clock çay çay naïve garden river.', 1421366400123456, 1700000000208000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -86, NULL, 0, 0, 1, 0, 0, NULL, 3, 'entry 14'),
(86, 2, '26664EF8-362A-4440-842C-655449B250B2', 'Entry 15', 'tea naïve river coat.', 1421452800123456, 1700000000212000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -85, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 15'),
(87, 3, '124FB3A0-251E-48B2-8944-FE508F3FC073', 'Entry 16', 'Übung 서울 план window clock Übung garden quince ποίημα.', 1421539200123456, 1700000000214000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -84, NULL, 0, 0, 0, 1, 2, 1700000000214000, NULL, 'entry 16'),
(88, 4, 'DB1469B6-9706-4800-B8FE-B0F5F2D09CD8', 'Entry 17', '서울 çay naïve quince Ærø tea clock naïve план.', 1421625600123456, 1700000000216000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001131000, 0, 0, NULL, 0, NULL, -83, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 17'),
(89, 5, 'F681C915-004C-40A8-9153-1E57B521D2EE', 'Entry 18', 'Kitchen ποίημα çay tea bread 서울 straße window river naïve river.', 1421712000123456, 1700000000218000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -82, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 18'),
(91, 2, '16832231-58C6-45FA-B9A1-8C254FC1FA06', 'Entry 19', '서울 letter river straße ποίημα ποίημα Ærø rain coat.', 1421798400123456, 1700000000220000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001132000, -81, NULL, 0, 0, 0, 0, 1, NULL, 4, NULL),
(92, 3, 'CF5C03FC-2055-4C9D-AEF7-C3421C7CB954', 'Entry 20', 'clock quince bread Kitchen quince 서울 Kitchen mañana.', 1421884800123456, 1700000000222000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -80, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 20'),
(93, 4, '2BDE5D14-B49F-49F9-A93F-B43BEEF8117D', 'Entry 21', '서울 rain 東京 clock Übung.', 1421971200123456, 1700000000224000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -79, NULL, 0, 0, 1, 1, 1, 1700000000224000, NULL, 'entry 21'),
(94, 5, '96B60D1E-9732-4495-8703-970C71CDF607', 'Entry 22', 'quince naïve Ærø coat letter çay.', 1422057600123456, 1700000000226000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001133000, 0, NULL, -78, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 22'),
(95, 1, 'E9341E9A-0867-4C60-94D1-49A738BC76FD', 'Entry 23', 'ladder mañana clock coat Übung straße Ærø çay çay garden.', 1422144000123456, 1700000000230000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -77, NULL, 1, 0, 0, 1, 1, NULL, NULL, 'entry 23'),
(96, 2, 'F1A0FED6-54E3-417A-858B-4509AE4ADDA0', 'Entry 24', 'naïve coat garden 東京 ποίημα Übung Kitchen quince coat.', 1422230400123456, 1700000000232000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -76, NULL, 0, 0, 0, 3, 0, 1700000000232000, 5, 'entry 24'),
(97, 3, 'A62A3F97-FAA8-4F3F-9F12-A80570DCCF68', 'Entry 25', 'coat 서울 garden çay bread tea bread clock план quince river.', 1422316800123456, 1700000000234000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -75, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 25'),
(98, 4, 'EA52CAA8-99C4-4152-B1D6-2E0D1550F6D1', 'Entry 26', 'naïve quince coat quince план coat straße.', 1422403200123456, 1700000000236000, 'Zoë’s test machine', 1, 1, 1700000001136000, 0, 1700000001137000, 0, 0, NULL, 0, NULL, -74, NULL, 0, 0, 0, 1, 2, NULL, NULL, NULL),
(99, 5, '5E703133-8E9E-4AD5-8487-B63BD4622923', 'Entry 27', '東京 東京 clock letter çay Übung çay tea çay.', 1422489600123456, 1700000000238000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -73, NULL, 0, 0, 0, 1, 2, 1700000000238000, NULL, 'entry 27'),
(101, 2, '72B87E8D-FA0B-446D-8295-517A5E7EA2BD', 'Entry 28', 'quince ladder clock Ærø.', 1422576000123456, 1700000000242000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -72, NULL, 0, 1, 1, 0, 0, NULL, NULL, 'entry 28'),
(102, 3, '62539BDF-B432-40DB-AA7C-6ECF1A259877', 'Entry 29', 'straße naïve naïve window план Ærø straße quince bread bread.', 1422662400123456, 1700000000244000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, -71, NULL, 0, 0, 0, 1, 0, 1700000000244000, 6, 'entry 29'),
(103, 4, 'B8A8B4A6-932C-443F-9541-C4DC75924490', 'Entry 30', 'ladder mañana Ærø rain naïve Ærø mañana ladder Ærø ποίημα river.', 1422748800123456, 1700000000246000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -70, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 30'),
(104, 5, '7D4E3BB8-2CA3-47FE-AE3D-204335BE4BF5', 'Entry 31', 'ποίημα mañana 東京 Ærø rain tea rain letter mañana.', 1422835200123456, 1700000000250000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -69, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 31'),
(105, 1, '7A43FB9E-151A-4F0A-85A1-248974EE80E7', 'Entry 32', 'Kitchen quince bread 서울 window ποίημα Kitchen rain Kitchen.', 1422921600123456, 1700000000252000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -68, NULL, 0, 0, 0, 1, 0, 1700000000252000, NULL, NULL),
(106, 2, '37EB6D45-0AF4-4327-8D25-9019EB7B2E87', 'Entry 33', 'coat quince Übung quince clock coat rain 서울.', 1423008000123456, 1700000000254000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001138000, 0, NULL, -67, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 33'),
(107, 3, 'AB80B88E-3737-44CE-A1EE-35BCFC008EFE', 'Entry 34', 'план Ærø straße tea quince window river Ærø letter tea ποίημα.', 1423094400123456, 1700000000258000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001141000, 0, 0, NULL, 0, NULL, -66, NULL, 0, 0, 0, 0, 2, NULL, 7, 'entry 34'),
(108, 4, '6BACC648-8C6E-4E52-879D-BC52492ED6D4', 'Entry 35', 'Kitchen river straße quince rain ποίημα Ærø bread.', 1423180800123456, 1700000000260000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -65, NULL, 0, 1, 1, 0, 0, 1700000000260000, NULL, 'entry 35'),
(109, 5, '61AF7758-C9CC-47F9-ADA4-7ED7A725862B', 'Entry 36', 'garden straße straße Ærø letter tea.', 1423267200123456, 1700000000262000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -64, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 36'),
(111, 2, 'BA760153-9D7A-40B7-AD08-221D00CF1304', 'Entry 37', 'Übung çay 서울.', 1423353600123456, 1700000000264000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -63, NULL, 0, 0, 0, 1, 1, 1700000000264000, NULL, 'entry 37'),
(112, 3, '47F68188-9A28-4920-8660-07F426D1FB9D', 'Entry 38', 'Ærø Kitchen tea rain çay.', 1423440000123456, 1700000000268000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001142000, -62, NULL, 0, 0, 0, 0, 1, NULL, NULL, NULL),
(113, 4, '141680C5-169B-47E5-9970-E4402D26B934', 'Entry 39', 'bread tea straße clock straße ladder rain 東京 window clock 東京.', 1423526400123456, 1700000000270000, 'Zoë’s test machine', 1, 1, 1700000001146000, 0, 1700000001147000, 0, 0, NULL, 0, NULL, -61, NULL, 0, 0, 0, 0, 1, NULL, 8, 'entry 39'),
(114, 5, '3420C5CF-85A1-40B5-B5B5-8CFE50766021', 'Entry 40', 'план çay window mañana quince quince.', 1423612800123456, 1700000000272000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -60, NULL, 0, 0, 0, 0, 0, 1700000000272000, NULL, 'entry 40'),
(115, 1, '33B776D0-3669-4C55-8A51-FB4EC7FE541D', 'Entry 41', 'coat quince window coat ποίημα straße naïve 東京.', 1423699200123456, 1700000000274000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -59, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 41'),
(116, 2, '0C3F8746-523F-4E40-AAAC-4574CBEF587D', 'Entry 42', 'tea straße ladder garden clock bread Ærø.', 1423785600123456, 1700000000278000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -58, NULL, 0, 0, 1, 0, 2, NULL, NULL, 'entry 42'),
(117, 3, '3E792FBE-2247-4A94-B15A-B21602BF6980', 'Entry 43', 'letter rain coat letter ladder.', 1423872000123456, 1700000000280000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -57, NULL, 0, 0, 0, 0, 1, 1700000000280000, NULL, 'entry 43'),
(118, 4, '5C6705C8-B409-4E61-8B62-28DB4C57EBBD', 'Entry 44', 'Kitchen rain ποίημα.', 1423958400123456, 1700000000282000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001148000, 0, NULL, -56, NULL, 0, 0, 0, 1, 2, NULL, 9, 'entry 44'),
(119, 5, '68829652-DDE9-422F-9D7A-5FE250777F71', 'Entry 45', 'план rain 서울 letter.', 1424044800123456, 1700000000284000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -55, NULL, 0, 0, 0, 2, 1, NULL, NULL, NULL),
(121, 2, '7F814B01-B4DC-4140-8BE5-CE6BBE4C3024', 'Entry 46', 'naïve rain Ærø tea план letter quince.', 1424131200123456, 1700000000286000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -54, NULL, 1, 0, 0, 0, 1, NULL, NULL, 'entry 46'),
(122, 3, '310E4995-73A0-4780-AE18-50A590B4445C', 'Entry 47', '서울 Kitchen 東京 rain quince çay Ærø ladder план straße.', 1424217600123456, 1700000000288000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -53, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 47'),
(123, 4, 'DA6607BC-09A2-4F42-BD44-798DC2DB6380', 'Entry 48', 'coat garden coat ποίημα quince ladder bread garden tea.', 1424304000123456, 1700000000292000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -52, NULL, 0, 0, 0, 1, 2, 1700000000292000, NULL, 'entry 48'),
(124, 5, '265B57ED-7B3B-46F7-AE3E-D6BD274782BB', 'Entry 49', 'window rain quince 東京 rain ladder.', 1424390400123456, 1700000000294000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -51, NULL, 0, 0, 1, 0, 1, NULL, 11, 'entry 49'),
(125, 1, '19B9207D-9EB4-445B-A9CE-B974ADF15519', 'Entry 50', 'straße план rain letter naïve coat.', 1424476800123456, 1700000000296000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -50, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 50'),
(126, 2, '49CA8602-1E4D-4E5B-A02A-12D3D9D8B8AA', 'Entry 51', 'bread naïve план window.', 1424563200123456, 1700000000298000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001153000, 0, 0, NULL, 0, NULL, -49, NULL, 0, 0, 0, 1, 0, 1700000000298000, NULL, NULL),
(127, 3, '848B18F2-9674-4684-8F9C-359E6770EE15', 'Entry 52', '東京 straße letter ladder Ærø river 서울 ποίημα.', 1424649600123456, 1700000000300000, 'Zoë’s test machine', 1, 1, 1700000001158000, 0, 1700000001159000, 0, 0, NULL, 0, NULL, -48, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 52'),
(128, 4, '9B85A3C8-52EE-40EC-A5B3-FC5E18CC6AA8', 'Entry 53', 'naïve coat Übung letter ladder clock garden quince.', 1424736000123456, 1700000000302000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -47, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 53'),
(129, 5, 'EBD59CA8-AF97-4CFC-9459-A505F01771C4', 'Entry 54', 'straße tea coat Kitchen mañana.', 1424822400123456, 1700000000304000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -46, NULL, 0, 0, 0, 0, 3, 1700000000304000, 12, 'entry 54'),
(131, 2, '948DB81D-729C-42DB-B69C-BFE7D13CC5D3', 'Entry 55', 'Ærø window план tea.', 1424908800123456, 1700000000306000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001160000, 0, NULL, -45, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 55'),
(132, 3, 'C84F64B0-345C-4C60-AAE5-39DE275A4E3D', 'Entry 56', '서울 ladder clock ladder letter rain ποίημα quince.', 1424995200123456, 1700000000308000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -44, NULL, 0, 1, 1, 0, 2, 1700000000308000, NULL, 'entry 56'),
(133, 4, '6AEE3985-CC99-4FFF-BA5D-25ACBC8F5C29', 'Entry 57', 'çay ladder ποίημα garden straße çay Ærø coat naïve coat.', 1425081600123456, 1700000000310000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001161000, -43, NULL, 0, 0, 0, 1, 0, NULL, NULL, NULL),
(134, 5, '3F0782AE-4BB4-4299-A4F0-EFA583197754', 'Entry 58', '東京 Übung coat letter bread straße 서울.', 1425168000123456, 1700000000312000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, -42, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 58'),
(135, 1, '76C08034-51AE-43D4-9136-7FA34E3CB264', 'Entry 59', 'Übung river window garden coat.', 1425254400123456, 1700000000314000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -41, NULL, 0, 0, 0, 1, 2, 1700000000314000, 13, 'entry 59'),
(136, 2, 'AE726AE6-97C1-4020-8C68-5A4B657219B7', 'Entry 60', 'Ærø coat window garden quince letter coat 東京.', 1425340800123456, 1700000000318000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -40, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 60'),
(137, 3, 'E9DF65D2-1036-40F6-B4F5-C9056E42FED0', 'Entry 61', 'Übung ποίημα 東京 東京 rain.', 1425427200123456, 1700000000320000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -39, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 61'),
(138, 4, 'E6F9DE6D-B270-4259-A087-D955A442F949', 'Entry 62', 'tea ladder ladder bread 東京 quince.', 1425513600123456, 1700000000322000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -38, NULL, 0, 0, 0, 0, 0, 1700000000322000, NULL, 'entry 62'),
(139, 5, '0BA3AAA7-3473-4DD4-BB94-C987B4EEC5B9', 'Entry 63', 'garden ποίημα Ærø coat.', 1425600000123456, 1700000000324000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -37, NULL, 0, 1, 1, 0, 0, NULL, NULL, 'entry 63'),
(141, 2, 'BE59F7D3-909C-4D52-91F4-7CC443BD6953', 'Entry 64', 'Übung ποίημα 東京 coat ladder план çay naïve window ladder coat.', 1425686400123456, 1700000000326000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -36, NULL, 0, 0, 0, 0, 3, 1700000000326000, 14, 'entry 64'),
(142, 3, 'C5A6CA3F-480C-49A2-98D3-E3A216D9A857', 'Entry 65', 'bread clock coat план river coat ladder coat.', 1425772800123456, 1700000000328000, 'Zoë’s test machine', 1, 1, 1700000001165000, 0, 1700000001166000, 0, 0, NULL, 0, NULL, -35, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 65'),
(143, 4, 'E6CB4DA6-CB15-4FB7-84D2-C40BEBA4B91B', 'Entry 66', 'ποίημα window coat 서울 garden.', 1425859200123456, 1700000000330000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001167000, 0, NULL, -34, NULL, 0, 0, 0, 3, 0, NULL, NULL, 'entry 66'),
(144, 5, 'CF818C81-88D9-4FDA-A68F-F355FED07B54', 'Entry 67', 'Ærø rain straße.', 1425945600123456, 1700000000332000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -33, NULL, 0, 0, 0, 0, 2, 1700000000332000, NULL, 'entry 67'),
(145, 1, '9BDD870E-4B0C-4F3D-A914-A53EC2A139CA', 'Entry 68', 'ποίημα çay clock 서울 clock river garden mañana.', 1426032000123456, 1700000000334000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001168000, 0, 0, NULL, 0, NULL, -32, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 68'),
(146, 2, 'C8057E7F-0002-4984-AD40-B9239E847C4B', 'Entry 69', 'план mañana tea garden.', 1426118400123456, 1700000000336000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -31, NULL, 1, 0, 0, 1, 0, NULL, 15, 'entry 69'),
(147, 3, 'EC500E02-B4F1-4E36-8FE0-D877803BBE01', 'Entry 70', 'straße coat 東京 план clock clock Übung bread naïve bread.', 1426204800123456, 1700000000338000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -30, NULL, 0, 0, 1, 0, 0, 1700000000338000, NULL, NULL),
(148, 4, 'DB43F76F-7C51-4BA9-932C-71E186D7B8F1', 'Entry 71', 'window Kitchen ladder 東京.', 1426291200123456, 1700000000340000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -29, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 71'),
(149, 5, '312F483B-5D52-40E2-9CF2-E8A68A57416D', 'Entry 72', 'letter Kitchen Kitchen 東京 bread garden çay window ladder naïve.', 1426377600123456, 1700000000342000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -28, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 72'),
(151, 2, '5FD8BB49-5FDB-4232-B3E5-D2D2B3DB98B7', 'Entry 73', 'river bread Übung tea rain 서울 garden rain mañana naïve.', 1426464000123456, 1700000000344000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -27, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 73'),
(152, 3, '44C1ECFD-2539-4BE1-97F1-2CB97DA9A01B', 'Entry 74', 'tea Übung bread river.', 1426550400123456, 1700000000348000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -26, NULL, 0, 0, 0, 2, 1, NULL, 16, 'entry 74'),
(153, 4, '28D5A5BA-8718-48EA-B7D3-FAA95EED1BA0', 'Entry 75', '東京 clock naïve Übung.', 1426636800123456, 1700000000350000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -25, NULL, 0, 0, 0, 2, 1, 1700000000350000, NULL, 'entry 75'),
(154, 5, '8E998D4E-A418-4338-9D1F-9CFC4C823C3B', 'Entry 76', 'tea river tea bread window naïve.', 1426723200123456, 1700000000354000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001169000, -24, NULL, 0, 0, 0, 1, 1, NULL, NULL, NULL),
(155, 1, '124E7E2E-CE07-43FC-8D88-2631760EEC11', 'Entry 77', 'Kitchen Kitchen mañana straße clock river bread rain naïve mañana.', 1426809600123456, 1700000000356000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001170000, 0, NULL, -23, NULL, 0, 0, 1, 2, 1, NULL, NULL, 'entry 77'),
(156, 2, '2D79B96C-77F5-4DF8-979A-1F71BA7F1725', 'Entry 78', 'bread çay quince ladder Kitchen план.', 1426896000123456, 1700000000358000, 'Zoë’s test machine', 1, 1, 1700000001174000, 0, 1700000001175000, 0, 0, NULL, 0, NULL, -22, NULL, 0, 0, 0, 0, 2, 1700000000358000, NULL, 'entry 78'),
(157, 3, '2ADD6D59-D1E0-4A2E-AD92-18A7CB27866A', 'Entry 79', 'rain garden Übung window mañana 서울.', 1426982400123456, 1700000000360000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -21, NULL, 0, 0, 0, 2, 0, NULL, 17, 'entry 79'),
(158, 4, '4470272E-1543-49E4-98C7-200C56C18702', 'Entry 80', 'mañana çay Kitchen план.', 1427068800123456, 1700000000362000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -20, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 80'),
(159, 5, 'E4E01483-555E-4311-91B7-ABB45F1967D9', 'Entry 81', 'straße tea letter bread garden coat window.', 1427155200123456, 1700000000364000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -19, NULL, 0, 0, 0, 0, 1, 1700000000364000, NULL, 'entry 81'),
(161, 2, '9DB343AF-F894-4FC7-8F08-9772BC38892E', 'Entry 82', 'coat Kitchen coat rain.', 1427241600123456, 1700000000366000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -18, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(162, 3, 'BC417875-BE15-4D96-9B99-7791E3A0DD68', 'Entry 83', 'Ærø coat straße bread Übung план river naïve garden.', 1427328000123456, 1700000000368000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -17, NULL, 0, 0, 0, 1, 0, 1700000000368000, NULL, 'entry 83'),
(163, 4, '0ED53499-F0EF-4C53-B6C4-ECD918ED39BF', 'Entry 84', 'quince 東京 Kitchen план Übung clock.', 1427414400123456, 1700000000372000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -16, NULL, 0, 1, 1, 1, 2, NULL, 18, 'entry 84'),
(164, 5, '3DF9D18B-9CEC-4C82-830A-1FFD6C5BE066', 'Entry 85', 'Übung river ποίημα çay ladder window letter Kitchen.', 1427500800123456, 1700000000374000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001180000, 0, 0, NULL, 0, NULL, -15, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 85'),
(165, 1, '721D371D-2129-4B41-A9B1-1955B0B5EDB0', 'Entry 86', '서울 bread clock river bread 서울 window.', 1427587200123456, 1700000000376000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -14, NULL, 0, 0, 0, 1, 1, 1700000000376000, NULL, 'entry 86'),
(166, 2, '00260715-050F-47CD-90BF-F761F29E64A0', 'Entry 87', 'ladder Kitchen план ladder Übung 東京.', 1427673600123456, 1700000000378000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, -13, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 87'),
(167, 3, '48ACA843-984E-4332-B0A3-73B41F01C0EA', 'Entry 88', 'план river план tea mañana 東京.', 1427760000123456, 1700000000382000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001181000, 0, NULL, -12, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 88'),
(168, 4, '2BEB7B5F-75D9-4C48-BA44-3AD1BFDC3425', 'Entry 89', 'bread Übung straße window letter coat 서울 letter naïve.', 1427846400123456, 1700000000384000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -11, NULL, 0, 0, 0, 1, 2, 1700000000384000, 19, NULL),
(169, 5, '2FB317C6-0097-4996-973B-08029283E572', 'Entry 90', 'ladder bread window straße clock Ærø coat coat river ποίημα.', 1427932800123456, 1700000000386000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -10, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 90'),
(171, 2, '8E4FC322-51C0-4AAC-AAA2-4E6BAC3C43AA', 'Entry 91', 'window naïve coat naïve Übung Kitchen bread bread letter ladder 東京.', 1428019200123456, 1700000000388000, 'Zoë’s test machine', 1, 1, 1700000001184000, 0, 1700000001185000, 0, 0, NULL, 0, NULL, -9, NULL, 0, 1, 1, 0, 1, 1700000000388000, NULL, 'entry 91'),
(172, 3, '96A9C46C-6779-49A7-90FA-AA43FDE20D19', 'Entry 92', 'ποίημα clock ladder naïve план clock Ærø quince.', 1428105600123456, 1700000000390000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -8, NULL, 1, 0, 0, 1, 1, NULL, NULL, 'entry 92'),
(173, 4, '26CBF305-F275-4C96-A749-0E2F4781A1C6', 'Entry 93', '東京 garden çay garden çay rain 서울 garden.', 1428192000123456, 1700000000392000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -7, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 93'),
(174, 5, '3CE7930F-717A-41EF-A762-354594A32631', 'Entry 94', '서울 straße quince letter ladder 東京 coat garden çay.', 1428278400123456, 1700000000396000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -6, NULL, 0, 0, 0, 1, 1, 1700000000396000, 21, 'entry 94'),
(175, 1, '616D278A-4336-4D7A-ADC9-C46C7BE89751', 'Entry 95', 'bread Ærø coat Ærø mañana ladder garden rain tea naïve.', 1428364800123456, 1700000000400000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001186000, -5, NULL, 0, 0, 0, 0, 1, NULL, NULL, NULL),
(176, 2, 'AA28E527-18A8-4C48-9F04-1DA3A3309E2F', 'Entry 96', 'tea ποίημα 東京 rain bread.', 1428451200123456, 1700000000402000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -4, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 96'),
(177, 3, '00F34F87-B409-4833-955B-734B8E51BD28', 'Entry 97', 'Kitchen çay çay çay rain 서울.', 1428537600123456, 1700000000404000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -3, NULL, 0, 0, 0, 0, 1, 1700000000404000, NULL, 'entry 97'),
(178, 4, '0C1BACF7-80B6-4090-B75A-91BBDA78F75F', 'Entry 98', 'garden rain 東京 Übung 東京 garden Kitchen 東京 bread.', 1428624000123456, 1700000000406000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -2, NULL, 0, 0, 1, 0, 0, NULL, NULL, 'entry 98'),
(179, 5, '25C8D36F-D1A7-4B46-9A17-1EC9BFDA302C', 'Entry 99', 'coat Kitchen план river tea rain 東京.', 1428710400123456, 1700000000410000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001187000, 0, NULL, -1, NULL, 0, 0, 0, 0, 0, NULL, 22, 'entry 99'),
(181, 2, 'FDFFE575-D124-4083-B375-F364F3B08358', 'Entry 100', 'bread garden план Kitchen letter coat Übung clock ladder river çay.', 1428796800123456, 1700000000412000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 100'),
(182, 3, '3910573F-5615-4021-9E1F-44A64765C566', 'Entry 101', 'window 東京 clock garden.', 1428883200123456, 1700000000414000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 1, NULL, 0, 0, 0, 2, 0, NULL, NULL, NULL),
(183, 4, 'FB350C74-64E0-4EA8-BE11-DDCE3D233AE3', 'Entry 102', 'bread naïve garden çay letter.', 1428969600123456, 1700000000416000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001191000, 0, 0, NULL, 0, NULL, 2, NULL, 0, 0, 0, 0, 0, 1700000000416000, NULL, 'entry 102'),
(184, 5, '9F1EB01E-60E0-4486-B66B-6B4A23A449A6', 'Entry 103', 'çay bread mañana ποίημα naïve clock letter clock mañana window coat.', 1429056000123456, 1700000000420000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 3, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 103'),
(185, 1, '4ED5F9EA-B216-457D-8D6D-0FD42EA66B59', 'Entry 104', 'Kitchen quince 東京 garden 서울.', 1429142400123456, 1700000000422000, 'Zoë’s test machine', 1, 1, 1700000001192000, 0, 1700000001193000, 0, 0, NULL, 0, NULL, 4, NULL, 0, 0, 0, 2, 0, NULL, 23, 'entry 104'),
(186, 2, '361B9DB0-8FC9-4DB3-B158-408D6F345EE7', 'Entry 105', 'rain naïve quince tea çay tea rain.', 1429228800123456, 1700000000426000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 5, NULL, 0, 0, 1, 0, 0, 1700000000426000, NULL, 'entry 105'),
(187, 3, '9D5ABECC-94B7-48DF-BA81-BEB60A6F769F', 'Entry 106', 'ladder mañana Kitchen tea coat çay letter clock clock.', 1429315200123456, 1700000000428000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 6, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 106'),
(188, 4, 'C5DFAFB0-8A28-4599-88FB-5796B1B77A58', 'Entry 107', 'Ærø Ærø quince bread Übung.', 1429401600123456, 1700000000430000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 7, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 107'),
(189, 5, 'F3839C18-14C1-4709-8B15-BA57DEE8C071', 'Entry 108', 'naïve ladder naïve garden Kitchen straße window coat ladder clock.', 1429488000123456, 1700000000434000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 8, NULL, 0, 0, 0, 0, 0, 1700000000434000, NULL, NULL),
(191, 2, 'FA9B8F0B-EF73-4535-9A2F-6FF6F93C589D', 'Entry 109', 'letter Kitchen naïve çay план straße naïve.', 1429574400123456, 1700000000436000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 9, NULL, 0, 0, 0, 2, 1, NULL, 24, 'entry 109'),
(192, 3, '53B2FD45-F4A6-434A-9F2F-053B8BFCEB23', 'Entry 110', 'straße ladder Übung garden river coat.', 1429660800123456, 1700000000438000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001194000, 0, NULL, 10, NULL, 0, 0, 0, 1, 0, 1700000000438000, NULL, 'entry 110'),
(193, 4, '7F33D449-F50C-4390-8954-F13AE7B0152F', 'Entry 111', 'letter bread Kitchen garden rain 東京 tea garden çay naïve.', 1429747200123456, 1700000000440000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 11, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 111'),
(194, 5, '47383343-835C-4632-B5FA-D76F4F6CDC6B', 'Entry 112', 'план naïve mañana coat letter 東京 quince.', 1429833600123456, 1700000000442000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 12, NULL, 0, 1, 1, 0, 3, NULL, NULL, 'entry 112'),
(195, 1, 'A7505252-7282-4EEA-B255-E8AFC1EB29B8', 'Entry 113', 'план bread quince river çay.', 1429920000123456, 1700000000444000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 13, NULL, 0, 0, 0, 1, 2, 1700000000444000, NULL, 'entry 113'),
(196, 2, '29CFFC2C-64DE-4F72-B1D6-2176B60F1B25', 'Entry 114', 'ποίημα letter 서울 naïve window mañana.', 1430006400123456, 1700000000448000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001195000, 14, NULL, 0, 0, 0, 1, 1, NULL, 25, NULL),
(197, 3, '2373B220-20A9-4ADF-B590-7575539CFC9F', 'Entry 115', 'coat 東京 garden window tea Ærø naïve.', 1430092800123456, 1700000000452000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 15, NULL, 1, 0, 0, 0, 0, NULL, NULL, 'entry 115'),
(198, 4, '2C04422B-7067-4F12-B03B-5A1DCD8997DA', 'Entry 116', 'straße план river clock 서울 Ærø straße river window çay tea.', 1430179200123456, 1700000000454000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 16, NULL, 0, 0, 0, 2, 0, 1700000000454000, NULL, 'entry 116'),
(199, 5, 'E4085B8E-57AF-48A5-A9D9-1EA77AF18521', 'Entry 117', 'letter river ποίημα coat clock clock 東京 ποίημα Ærø.', 1430265600123456, 1700000000458000, 'Zoë’s test machine', 1, 1, 1700000001199000, 0, 1700000001200000, 0, 0, NULL, 0, NULL, 17, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 117'),
(201, 2, '4A45B741-D16C-4932-B076-0432B8CEA68A', 'Entry 118', 'bread bread coat naïve naïve window tea bread.', 1430352000123456, 1700000000460000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 18, NULL, 0, 0, 0, 2, 1, 1700000000460000, NULL, 'entry 118'),
(202, 3, 'DEF598A7-3AB7-4026-9D55-DFC6C9B78FE0', 'Entry 119', 'çay letter quince clock tea naïve garden 서울 mañana clock план.', 1430438400123456, 1700000000464000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001205000, 0, 0, NULL, 0, NULL, 19, NULL, 0, 1, 1, 0, 0, NULL, 26, 'entry 119'),
(203, 4, 'F38CD6FA-CD31-4FB5-975C-4E6B02E845E0', 'Entry 120', '서울 window Ærø ladder rain letter bread 東京 ladder.', 1430524800123456, 1700000000466000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 20, NULL, 0, 0, 0, 1, 2, NULL, NULL, NULL),
(204, 5, '96AA8214-3869-4725-9A95-7D03F5BE9C09', 'Entry 121', 'coat naïve tea.', 1430611200123456, 1700000000470000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001206000, 0, NULL, 21, NULL, 0, 0, 0, 2, 0, 1700000000470000, NULL, 'entry 121'),
(205, 1, '3C51B14E-680B-40AF-9751-5A0CB8D11C73', 'Entry 122', 'garden çay Übung naïve çay Übung план план garden.', 1430697600123456, 1700000000472000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 22, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 122'),
(206, 2, '23D08890-8615-42AF-ADAA-9923EAF34B1A', 'Entry 123', 'mañana ladder план straße.', 1430784000123456, 1700000000474000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 23, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 123'),
(207, 3, 'F435574A-C2CD-4C34-B1A4-BCDFAFC522BD', 'Entry 124', 'Kitchen rain Übung garden window.', 1430870400123456, 1700000000478000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 24, NULL, 0, 0, 0, 0, 3, 1700000000478000, 27, 'entry 124'),
(208, 4, 'F552D434-7AE3-4D89-B269-992FC0D8A7D5', 'Entry 125', 'window river ladder план naïve mañana quince Ærø.', 1430956800123456, 1700000000480000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 25, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 125'),
(209, 5, '952D2C58-FD53-44C3-86A3-EEF722183D72', 'Entry 126', 'Kitchen tea ladder план naïve mañana letter bread garden план straße.', 1431043200123456, 1700000000484000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 26, NULL, 0, 0, 1, 2, 1, NULL, NULL, 'entry 126'),
(211, 2, 'E7804B7E-493F-4940-A773-0E169A6F0F51', 'Entry 127', 'çay Übung quince ποίημα rain letter mañana çay garden.', 1431129600123456, 1700000000488000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 27, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 127'),
(212, 3, 'D6A5C84A-DC0E-4EB1-98AD-EA569E534DC7', 'Entry 128', 'çay план river.', 1431216000123456, 1700000000492000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 28, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 128'),
(213, 4, 'DA72A8BB-6BFE-4602-88CB-C7E41DDF8A48', 'Entry 129', 'garden çay çay çay ladder tea naïve straße river план.', 1431302400123456, 1700000000496000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 29, NULL, 0, 0, 0, 1, 1, 1700000000496000, 28, 'entry 129'),
(214, 5, '0612221F-E0E8-4062-AB33-247F52FE8802', 'Entry 130', 'çay bread ladder straße mañana Kitchen bread.', 1431388800123456, 1700000000500000, 'Zoë’s test machine', 1, 1, 1700000001209000, 0, 1700000001210000, 0, 0, NULL, 0, NULL, 30, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 130'),
(215, 1, '248A6732-4D93-4DFE-A223-07F2C781E603', 'Entry 131', 'Ærø garden coat tea 東京 서울 Kitchen çay naïve план.', 1431475200123456, 1700000000502000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 31, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 131'),
(216, 2, '2EBD8683-8824-4430-BCEA-518E8FE3B0AB', 'Entry 132', 'ποίημα çay bread quince letter.', 1431561600123456, 1700000000504000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001211000, 0, NULL, 32, NULL, 0, 0, 0, 1, 2, 1700000000504000, NULL, 'entry 132'),
(217, 3, 'AB39D5EB-7DFA-4FC3-AE2E-F2B2020051BA', 'Entry 133', 'quince tea window.', 1431648000123456, 1700000000508000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001212000, 33, NULL, 0, 0, 1, 2, 0, NULL, NULL, NULL),
(218, 4, '39006ECD-6843-4F46-832F-7A2A01D16F2F', 'Entry 134', 'tea letter rain river garden straße.', 1431734400123456, 1700000000510000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 34, NULL, 0, 0, 0, 1, 1, NULL, 29, 'entry 134'),
(219, 5, '9044F695-3D1D-4CE0-82A2-D879D64DFBE1', 'Entry 135', 'ποίημα çay ladder Ærø.', 1431820800123456, 1700000000512000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 35, NULL, 0, 0, 0, 1, 0, 1700000000512000, NULL, 'entry 135'),
(221, 2, '268A7C7A-1510-4E87-B5B5-C34D8CD67CD5', 'Entry 136', 'план straße Kitchen.', 1431907200123456, 1700000000514000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001217000, 0, 0, NULL, 0, NULL, 36, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 136'),
(222, 3, '9C8D3D86-F0B9-422D-BD7A-33DD86B92807', 'Entry 137', 'bread naïve letter mañana Übung tea.', 1431993600123456, 1700000000516000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 37, NULL, 0, 0, 0, 0, 0, 1700000000516000, NULL, 'entry 137'),
(223, 4, 'F27204E4-DCE3-4792-B348-FC8252AEFB69', 'Entry 138', 'ladder letter straße bread quince.', 1432080000123456, 1700000000518000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 38, NULL, 1, 0, 0, 2, 0, NULL, NULL, 'entry 138'),
(224, 5, '12561DA3-0BB4-4CA5-8EC5-98C5FC9DCD98', 'Entry 139', 'tea ποίημα mañana coat 東京 mañana.', 1432166400123456, 1700000000522000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 39, NULL, 0, 0, 0, 0, 1, NULL, 31, NULL),
(225, 1, 'EA8DCC51-6A2F-48AB-8B3E-F419996AC8AA', 'Entry 140', 'garden 東京 river bread rain coat straße quince.', 1432252800123456, 1700000000524000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 40, NULL, 0, 1, 1, 0, 0, 1700000000524000, NULL, 'entry 140'),
(226, 2, '3D2C2CB5-A09C-4514-BD07-FF64B3E1B2E7', 'Entry 141', 'straße Ærø quince straße naïve coat mañana 서울.', 1432339200123456, 1700000000526000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 41, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 141'),
(227, 3, '70D31509-4D8B-45C3-A3F2-79F2A529898F', 'Entry 142', 'straße coat clock ladder mañana.', 1432425600123456, 1700000000528000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 42, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 142'),
(228, 4, 'DDF4E877-554C-4DB4-9956-A56B8F965BA4', 'Entry 143', 'letter clock tea Ærø.', 1432512000123456, 1700000000530000, 'Zoë’s test machine', 1, 1, 1700000001219000, 0, 1700000001220000, 0, 1, 1700000001218000, 0, NULL, 43, NULL, 0, 0, 0, 0, 0, 1700000000530000, NULL, 'entry 143'),
(229, 5, 'ADC203BA-5F48-4863-B5F6-5990EA55CAA0', 'Entry 144', 'straße çay rain bread.', 1432598400123456, 1700000000532000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 44, NULL, 0, 0, 0, 0, 3, NULL, 32, 'entry 144'),
(231, 2, 'BE864925-822D-4DA9-A103-849EC1C5586F', 'Entry 145', 'quince ποίημα river Ærø straße Ærø clock план window 東京 Übung.', 1432684800123456, 1700000000536000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 45, NULL, 0, 0, 0, 0, 0, 1700000000536000, NULL, NULL),
(232, 3, '4B5D6CEA-DD78-4475-BD38-19CF240452F0', 'Entry 146', 'clock Ærø 東京 東京 план ladder Übung tea 서울 çay план.', 1432771200123456, 1700000000538000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 46, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 146'),
(233, 4, '5E8B2A16-F9D4-4CB8-B2A0-BA7756C4C216', 'Entry 147', 'Kitchen Übung Übung план river Übung rain mañana naïve Übung Übung.', 1432857600123456, 1700000000540000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 47, NULL, 0, 1, 1, 1, 1, NULL, NULL, 'entry 147'),
(234, 5, '82C98121-D007-4F45-85E5-AA8F232ED117', 'Entry 148', 'letter straße ladder.', 1432944000123456, 1700000000544000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 48, NULL, 0, 0, 0, 1, 2, 1700000000544000, NULL, 'entry 148'),
(235, 1, '2E8B40E3-38D3-4638-8CCA-C724B21F171C', 'Entry 149', 'tea river quince.', 1433030400123456, 1700000000546000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 49, NULL, 0, 0, 0, 3, 0, NULL, 33, 'entry 149'),
(236, 2, '00A73DA0-427A-4A2E-8F6D-A5B55AD82122', 'Entry 150', 'rain garden ladder mañana bread rain 東京 çay.', 1433116800123456, 1700000000548000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 50, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 150'),
(237, 3, '194E13ED-D3F8-44CB-9465-F3BFE04F7FE2', 'Entry 151', '서울 window Kitchen.', 1433203200123456, 1700000000550000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 51, NULL, 0, 0, 0, 1, 2, 1700000000550000, NULL, 'entry 151'),
(238, 4, '29A62706-6408-4057-AA92-2CAB5D658582', 'Entry 152', 'window Ærø window tea river Kitchen план clock.', 1433289600123456, 1700000000552000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001221000, 52, NULL, 0, 0, 0, 1, 2, NULL, NULL, NULL),
(239, 5, 'BEE8A45E-7DBB-4393-97FC-9E9162A73717', 'Entry 153', '서울 ladder 東京 東京 Ærø clock 東京 ladder ποίημα quince план.', 1433376000123456, 1700000000554000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001222000, 0, 0, NULL, 0, NULL, 53, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 153'),
(241, 2, '10895B1E-B0B1-4533-9580-9F5D92272C31', 'Entry 154', 'straße çay Übung 東京 план rain 서울.', 1433462400123456, 1700000000556000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001223000, 0, NULL, 54, NULL, 0, 0, 1, 0, 0, NULL, 34, 'entry 154'),
(242, 3, 'AC172451-FD59-456B-8A55-44F43D2BAE6D', 'Entry 155', 'quince план window.', 1433548800123456, 1700000000558000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 55, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 155'),
(243, 4, 'B5CA0CA3-118B-44D7-9AC1-10CB657D7A99', 'Entry 156', 'mañana bread Übung letter window bread Übung quince naïve quince çay.', 1433635200123456, 1700000000562000, 'Zoë’s test machine', 1, 1, 1700000001224000, 0, 1700000001225000, 0, 0, NULL, 0, NULL, 56, NULL, 0, 0, 0, 0, 1, 1700000000562000, NULL, 'entry 156'),
(244, 5, 'F7519CE1-C939-4294-9DEF-F920ABDBAFAE', 'Entry 157', '東京 tea bread Übung.', 1433721600123456, 1700000000564000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 57, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 157'),
(245, 1, '756EB9EF-4F01-470C-A713-B772BBF57339', 'Entry 158', '서울 mañana Kitchen straße garden rain çay.', 1433808000123456, 1700000000566000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 58, NULL, 0, 0, 0, 2, 1, NULL, NULL, NULL),
(246, 2, 'C258FD39-B575-477D-8221-AC35A5EEBEC9', 'Entry 159', 'план Ærø 東京 clock план garden window garden quince.', 1433894400123456, 1700000000568000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 59, NULL, 0, 0, 0, 0, 2, 1700000000568000, 35, 'entry 159'),
(247, 3, '3C457AC8-56D2-4CB0-88D3-C01A34911BAA', 'Entry 160', 'tea river 東京 서울.', 1433980800123456, 1700000000570000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 60, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 160'),
(248, 4, 'B078355C-66F5-4E54-AD9C-8F2159468EF2', 'Entry 161', 'straße garden tea.', 1434067200123456, 1700000000572000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 61, NULL, 1, 0, 1, 1, 0, NULL, NULL, 'entry 161'),
(249, 5, 'DAECCF41-0DE7-4A33-97DD-8A48EF69B31D', 'Entry 162', '東京 tea letter coat window 서울 Ærø clock.', 1434153600123456, 1700000000574000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 62, NULL, 0, 0, 0, 0, 0, 1700000000574000, NULL, 'entry 162'),
(251, 2, '9302A496-3862-4EBA-9522-65A7B69C8B6E', 'Entry 163', 'straße naïve ladder.', 1434240000123456, 1700000000576000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 63, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 163'),
(252, 3, '3B02FF83-560A-4B81-BDC6-EB8C9EC3E8CF', 'Entry 164', 'garden straße Übung window.', 1434326400123456, 1700000000578000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 64, NULL, 0, 0, 0, 0, 0, 1700000000578000, 36, NULL),
(253, 4, 'EDBDB97E-87AA-4335-998C-63F2CA4B76E5', 'Entry 165', 'clock çay garden bread naïve план coat Ærø Ærø ladder.', 1434412800123456, 1700000000580000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001226000, 0, NULL, 65, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 165'),
(254, 5, 'BB77A245-32E1-4C15-956F-4BAB03540676', 'Entry 166', 'quince straße Kitchen ladder 東京 naïve naïve river.', 1434499200123456, 1700000000582000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 66, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 166'),
(255, 1, '81416092-B507-4046-AEEB-6419ECF070A2', 'Entry 167', 'çay rain river Übung window letter.', 1434585600123456, 1700000000584000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 67, NULL, 0, 0, 0, 1, 1, 1700000000584000, NULL, 'entry 167'),
(256, 2, 'FB37C7F9-70BF-4E8B-8C31-4FC3FEB645D1', 'Entry 168', 'coat rain clock rain bread straße.', 1434672000123456, 1700000000588000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 68, NULL, 0, 1, 1, 1, 2, NULL, NULL, 'entry 168'),
(257, 3, '0B6FB3E8-D7D5-40CC-BC77-882754666192', 'Entry 169', 'план tea letter bread tea.', 1434758400123456, 1700000000590000, 'Zoë’s test machine', 1, 1, 1700000001227000, 0, 1700000001228000, 0, 0, NULL, 0, NULL, 69, NULL, 0, 0, 0, 0, 1, NULL, 37, 'entry 169'),
(258, 4, '03AEA81F-DFAA-4E17-90D8-1FE14B536B06', 'Entry 170', 'window tea Kitchen çay Kitchen Übung.', 1434844800123456, 1700000000592000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001233000, 0, 0, NULL, 0, NULL, 70, NULL, 0, 0, 0, 1, 2, 1700000000592000, NULL, 'entry 170'),
(259, 5, '122D4035-D5AB-4079-B2AA-6D8D878085EE', 'Entry 171', 'Kitchen Kitchen garden.', 1434931200123456, 1700000000594000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001234000, 71, NULL, 0, 0, 0, 3, 0, NULL, NULL, NULL),
(261, 2, 'FA8D0826-C2BB-46E1-B36E-42056899D806', 'Entry 172', 'mañana naïve 서울 ποίημα naïve mañana Ærø.', 1435017600123456, 1700000000598000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 72, NULL, 0, 0, 0, 1, 1, 1700000000598000, NULL, 'entry 172'),
(262, 3, '168DB095-F807-417A-BF7F-864D9C2BD4C6', 'Entry 173', 'mañana план ladder window clock bread 서울 mañana 서울 Kitchen ποίημα.', 1435104000123456, 1700000000600000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 73, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 173'),
(263, 4, 'F9E11CFC-C9D9-46B5-8DFF-4869B65932B0', 'Entry 174', 'mañana quince coat mañana coat window 東京 window Übung.', 1435190400123456, 1700000000602000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 74, NULL, 0, 0, 0, 3, 0, NULL, 38, 'entry 174'),
(264, 5, 'A6B9A2C4-C133-48E6-A7FB-55FAAF7126D4', 'Entry 175', 'ladder Ærø bread clock window coat ποίημα Kitchen ποίημα.', 1435276800123456, 1700000000604000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 75, NULL, 0, 1, 1, 2, 1, 1700000000604000, NULL, 'entry 175'),
(265, 1, 'A69F4E4E-88A4-4F48-A5CD-7A222793C39F', 'Entry 176', 'window 서울 Kitchen Ærø clock.', 1435363200123456, 1700000000606000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001235000, 0, NULL, 76, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 176'),
(266, 2, '46C037BB-381A-4CD9-8D9E-67B4581F53E8', 'Entry 177', 'mañana letter план mañana.', 1435449600123456, 1700000000608000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 77, NULL, 0, 0, 0, 1, 0, NULL, NULL, NULL),
(267, 3, 'AB80330A-48A7-48CC-8D45-C5310B8CBBE5', 'Entry 178', 'ποίημα bread naïve.', 1435536000123456, 1700000000610000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 78, NULL, 0, 0, 0, 0, 0, 1700000000610000, NULL, 'entry 178'),
(268, 4, '8DF9599F-9399-4056-8212-56DBE3FFE2E2', 'Entry 179', 'tea 東京 quince rain mañana.', 1435622400123456, 1700000000612000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 79, NULL, 0, 0, 0, 0, 0, NULL, 39, 'entry 179'),
(269, 5, '24300EA8-2DCE-4F80-B6F2-146A5417ED73', 'Entry 180', 'bread letter coat mañana bread naïve.', 1435708800123456, 1700000000614000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 80, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 180'),
(271, 2, '37BB2825-02EC-41A2-85AB-E9DAEBA8EDD3', 'Entry 181', 'Übung bread quince letter window river coat ποίημα план mañana 서울.', 1435795200123456, 1700000000616000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 81, NULL, 0, 0, 0, 3, 0, NULL, NULL, 'entry 181'),
(272, 3, 'F4BC2D92-6FC4-4ABC-AD3A-751781A8748D', 'Entry 182', '東京 Übung 東京.', 1435881600123456, 1700000000618000, 'Zoë’s test machine', 1, 1, 1700000001241000, 0, 1700000001242000, 0, 0, NULL, 0, NULL, 82, NULL, 0, 0, 1, 1, 0, NULL, NULL, 'entry 182'),
(273, 4, 'CDBE33DE-2FBD-49C0-A117-7101826843FD', 'Entry 183', 'naïve rain ποίημα garden план план quince.', 1435968000123456, 1700000000620000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 83, NULL, 0, 0, 0, 1, 0, 1700000000620000, NULL, NULL),
(274, 5, 'D36C8408-CD6C-4E8D-A278-0664DF7A6BC4', 'Entry 184', 'naïve naïve river Übung window bread ladder 東京.', 1436054400123456, 1700000000624000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 84, NULL, 1, 0, 0, 1, 0, NULL, 41, 'entry 184'),
(275, 1, 'F9583DCB-C491-46AB-9C91-34B05BDE6F3B', 'Entry 185', 'letter план window Kitchen quince Übung clock çay letter çay.', 1436140800123456, 1700000000626000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 85, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 185'),
(276, 2, '1556F7C7-DC09-4C0A-94D3-8FAE2693FE3C', 'Entry 186', 'coat coat tea window mañana план naïve Kitchen tea garden.', 1436227200123456, 1700000000630000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 86, NULL, 0, 0, 0, 0, 0, 1700000000630000, NULL, 'entry 186'),
(277, 3, '049669BE-3BA8-45E4-AFF1-C617CC741F63', 'Entry 187', 'bread garden clock clock garden rain coat quince rain.', 1436313600123456, 1700000000632000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001247000, 0, 1, 1700000001243000, 0, NULL, 87, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 187'),
(278, 4, '63E43A9B-481E-4238-ACA4-BB586DB8EB64', 'Entry 188', 'mañana 서울 tea bread 서울 letter ποίημα coat.', 1436400000123456, 1700000000634000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 88, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 188'),
(279, 5, 'D3380130-08B6-4517-AADD-35F24697AAC4', 'Entry 189', 'ποίημα ποίημα ποίημα rain 서울 naïve çay window garden garden.', 1436486400123456, 1700000000636000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 89, NULL, 0, 0, 1, 0, 1, 1700000000636000, 42, 'entry 189'),
(281, 2, '767FBD9E-C81A-4371-985E-7215BC6D20DA', 'Entry 190', 'straße ladder Übung quince Ærø çay Übung.', 1436572800123456, 1700000000640000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001248000, 90, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 190'),
(282, 3, 'A80DF940-EF33-49F4-86B8-153B789EADC4', 'Entry 191', 'bread Übung план rain.', 1436659200123456, 1700000000642000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 91, NULL, 0, 0, 0, 0, 2, 1700000000642000, NULL, 'entry 191'),
(283, 4, 'EE396993-D29F-46BC-8BA1-11E569CEE000', 'Entry 192', 'rain çay Übung letter straße.', 1436745600123456, 1700000000644000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 92, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 192'),
(284, 5, 'D22978C3-557A-4E64-A298-E1C80C32FD3F', 'Entry 193', 'letter coat Übung mañana rain.', 1436832000123456, 1700000000646000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 93, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 193'),
(285, 1, 'C0A1BB23-1306-47E0-BC92-FDE0BE099728', 'Entry 194', '東京 rain clock naïve çay window 서울.', 1436918400123456, 1700000000650000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 94, NULL, 0, 0, 0, 1, 1, 1700000000650000, 43, 'entry 194'),
(286, 2, '86D70DE3-7635-4D28-B67A-7726102F2661', 'Entry 195', 'mañana план 東京 서울 çay Ærø Ærø Übung 서울.', 1437004800123456, 1700000000654000, 'Zoë’s test machine', 1, 1, 1700000001250000, 0, 1700000001251000, 0, 0, NULL, 0, NULL, 95, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 195'),
(287, 3, '0D3C66D2-BB68-47FA-ACD3-F582A1FFF4DB', 'Entry 196', 'ladder rain 東京 mañana naïve Kitchen naïve rain tea.', 1437091200123456, 1700000000656000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 96, NULL, 0, 1, 1, 1, 2, NULL, NULL, NULL),
(288, 4, '897B82CC-ABE6-416E-91D8-35B26E644BF4', 'Entry 197', 'план naïve 東京 Kitchen coat ποίημα 서울 letter mañana letter window.', 1437177600123456, 1700000000658000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 97, NULL, 0, 0, 0, 1, 0, 1700000000658000, NULL, 'entry 197'),
(289, 5, '0624E35E-904C-426E-BE96-F946FB6DEB45', 'Entry 198', '서울 straße naïve quince garden window straße garden.', 1437264000123456, 1700000000660000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001252000, 0, NULL, 98, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 198'),
(291, 2, '528FDFE8-1295-4902-8E4E-86603B241985', 'Entry 199', 'river tea coat coat.', 1437350400123456, 1700000000662000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 99, NULL, 0, 0, 0, 0, 1, 1700000000662000, 44, 'entry 199'),
(292, 3, '3D786A88-0694-480D-9D03-CE85D1DAFC27', 'Entry 200', 'naïve Ærø план ladder river.', 1437436800123456, 1700000000664000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 100, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 200'),
(293, 4, 'E2876620-0AC4-4B2C-A9E2-51CFE193317E', 'Entry 201', 'ποίημα tea 東京 tea tea quince garden mañana coat clock.', 1437523200123456, 1700000000668000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 101, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 201'),
(294, 5, 'CDA61FCC-BBD1-4B59-BA27-08030E6289CB', 'Entry 202', 'letter çay mañana ποίημα 서울 bread window river 東京 garden coat.', 1437609600123456, 1700000000670000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 102, NULL, 0, 0, 0, 2, 1, 1700000000670000, NULL, NULL),
(295, 1, '4E514072-49D3-470F-BAED-C06CB4AF1AF4', 'Entry 203', 'naïve план letter garden straße window çay naïve quince window window.', 1437696000123456, 1700000000672000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 103, NULL, 0, 1, 1, 2, 1, NULL, NULL, 'entry 203'),
(296, 2, 'B5109907-7E18-4489-99A4-6D725950B4C5', 'Entry 204', 'rain план 東京 Ærø Ærø ποίημα ladder.', 1437782400123456, 1700000000676000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001256000, 0, 0, NULL, 0, NULL, 104, NULL, 0, 0, 0, 0, 0, NULL, 45, 'entry 204'),
(297, 3, '869D61E0-5E02-48D8-9ABC-C57700560E44', 'Entry 205', 'garden план bread ποίημα naïve mañana план mañana bread garden.', 1437868800123456, 1700000000680000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 105, NULL, 0, 0, 0, 1, 1, 1700000000680000, NULL, 'entry 205'),
(298, 4, '09F54B9E-7320-4343-8CE6-1EC608E6F491', 'Entry 206', 'quince Kitchen 서울 план план ποίημα ποίημα naïve bread.', 1437955200123456, 1700000000682000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 106, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 206'),
(299, 5, '6BCAC2B0-41E9-4068-A011-4D7FBA0B42E5', 'Entry 207', '東京 план Übung mañana.', 1438041600123456, 1700000000684000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 107, NULL, 1, 0, 0, 0, 0, NULL, NULL, 'entry 207'),
(301, 2, 'A187FA86-04BE-4015-B514-25B23AF3D1CE', 'Entry 208', 'ladder план план.', 1438128000123456, 1700000000686000, 'Zoë’s test machine', 1, 1, 1700000001257000, 0, 1700000001258000, 0, 0, NULL, 0, NULL, 108, NULL, 0, 0, 0, 1, 2, NULL, NULL, NULL),
(302, 3, '862E700C-6CBD-41B3-9B3B-0E15D7358DCA', 'Entry 209', 'naïve window letter straße Kitchen.', 1438214400123456, 1700000000688000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001259000, 1, 1700000001260000, 109, NULL, 0, 0, 0, 1, 1, NULL, 46, 'entry 209'),
(303, 4, '7922E3E6-3146-4735-B3B3-0CC6F08AE284', 'Entry 210', 'quince window Kitchen.', 1438300800123456, 1700000000690000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 110, NULL, 0, 0, 1, 2, 0, 1700000000690000, NULL, 'entry 210'),
(304, 5, 'E08B4AA5-9FAB-4EA5-A5FD-D680A619962C', 'Entry 211', 'ποίημα tea window Ærø clock Übung.', 1438387200123456, 1700000000692000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 111, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 211'),
(305, 1, 'DD6EF52E-D58D-499F-AE51-7D42F524347F', 'Entry 212', 'tea rain Ærø naïve naïve naïve coat naïve bread Kitchen.', 1438473600123456, 1700000000694000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 112, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 212'),
(306, 2, 'A21F0D2F-9299-473F-9605-F297939E7404', 'Entry 213', 'coat план straße mañana Kitchen garden план river letter mañana.', 1438560000123456, 1700000000698000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 113, NULL, 0, 0, 0, 0, 1, 1700000000698000, NULL, 'entry 213'),
(307, 3, '99DDEB32-4372-4B82-A255-6BB8920C1825', 'Entry 214', '東京 mañana 서울 clock çay rain çay mañana 東京 river.', 1438646400123456, 1700000000700000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 114, NULL, 0, 0, 0, 1, 1, NULL, 47, 'entry 214'),
(308, 4, 'C5C03A80-408D-45A5-A27D-0E6D115AD916', 'Entry 215', 'letter çay çay clock ποίημα ποίημα Übung rain Übung Ærø 서울.', 1438732800123456, 1700000000702000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 115, NULL, 0, 0, 0, 1, 2, NULL, NULL, NULL),
(309, 5, '7A7094B2-C830-4A17-A0E8-410C6894D515', 'Entry 216', 'clock clock çay window tea.', 1438819200123456, 1700000000704000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 116, NULL, 0, 0, 0, 1, 0, 1700000000704000, NULL, 'entry 216'),
(311, 2, 'AE1F9AA2-6EEE-4E78-BA72-F15AD2458E65', 'Entry 217', '東京 naïve 서울.', 1438905600123456, 1700000000706000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 117, NULL, 0, 0, 1, 1, 1, NULL, NULL, 'entry 217'),
(312, 3, '4FF0E478-D3CE-4BBE-9943-FD9113B62500', 'Entry 218', 'bread Kitchen letter.', 1438992000123456, 1700000000710000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 118, NULL, 0, 0, 0, 0, 0, 1700000000710000, NULL, 'entry 218'),
(313, 4, 'A8851583-0BCF-4306-AFCB-2E10BF041377', 'Entry 219', 'mañana çay 東京 ποίημα river garden rain çay naïve Übung.', 1439078400123456, 1700000000714000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 119, NULL, 0, 0, 0, 3, 0, NULL, 48, 'entry 219'),
(314, 5, '5B0BA406-3C1D-4CB1-A3F4-7DFCB706A83F', 'Entry 220', 'çay ladder 서울 ladder river coat rain ladder.', 1439164800123456, 1700000000716000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001261000, 0, NULL, 120, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 220'),
(315, 1, '07764B1A-379F-42EE-9F36-CDCC065F5ACE', 'Entry 221', 'ladder garden river Übung.', 1439251200123456, 1700000000718000, 'Zoë’s test machine', 1, 1, 1700000001266000, 1, 1700000001272000, 0, 0, NULL, 0, NULL, 121, NULL, 0, 0, 0, 0, 0, 1700000000718000, NULL, NULL),
(316, 2, 'B90D5317-9441-4AD4-B642-D3D72590F7E3', 'Entry 222', 'tea naïve letter window Kitchen mañana coat bread Übung bread.', 1439337600123456, 1700000000720000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 122, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 222'),
(317, 3, '07D0C474-0F6B-4FD2-942F-14E3F6BA09E0', 'Entry 223', 'clock mañana rain ladder clock bread window 東京.', 1439424000123456, 1700000000722000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 123, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 223'),
(318, 4, 'B73BD8ED-0799-490A-A427-F994D2CB9C62', 'Entry 224', 'ladder bread Ærø ladder coat coat window mañana tea garden.', 1439510400123456, 1700000000724000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 124, NULL, 0, 1, 1, 0, 0, 1700000000724000, 49, 'entry 224'),
(319, 5, '28D57CD3-058A-40BC-83E5-7ABB64A1FE95', 'Entry 225', 'Übung straße Ærø naïve quince Übung river bread mañana ποίημα coat.', 1439596800123456, 1700000000728000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 125, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 225'),
(321, 2, '508E9F76-932A-4F49-9BF3-3D8E35722867', 'Entry 226', 'план letter mañana river quince план clock clock.', 1439683200123456, 1700000000730000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 126, NULL, 0, 0, 0, 1, 1, 1700000000730000, NULL, 'entry 226'),
(322, 3, 'DAABFF0B-49C8-4F33-BA8F-30E503997B40', 'Entry 227', 'garden window letter.', 1439769600123456, 1700000000732000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 127, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(323, 4, '701C44BB-3BD3-4DE4-AE6D-844542492B57', 'Entry 228', 'clock window bread Übung letter tea rain mañana план.', 1439856000123456, 1700000000734000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001273000, 128, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 228'),
(324, 5, '6A53494E-BE04-4828-A18C-12B62313F5E7', 'Entry 229', 'clock window straße clock ποίημα план naïve 東京.', 1439942400123456, 1700000000736000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 129, NULL, 0, 0, 0, 3, 0, 1700000000736000, 51, 'entry 229'),
(325, 1, '1FEB8946-1DA0-46E6-95DE-D654D38BD46A', 'Entry 230', 'ποίημα garden mañana Kitchen план quince mañana coat tea 東京.', 1440028800123456, 1700000000738000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 130, NULL, 1, 0, 0, 1, 1, NULL, NULL, 'entry 230'),
(326, 2, 'E0DFD2FD-9C59-446A-915F-950ACFBD2758', 'Entry 231', 'garden ποίημα straße window naïve план mañana.', 1440115200123456, 1700000000742000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001274000, 0, NULL, 131, NULL, 0, 1, 1, 0, 0, NULL, NULL, 'entry 231'),
(327, 3, 'D7F87E48-4D80-46FD-A658-EF7DAF052ECA', 'Entry 232', 'clock letter bread.', 1440201600123456, 1700000000744000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 132, NULL, 0, 0, 0, 2, 1, 1700000000744000, NULL, 'entry 232'),
(328, 4, 'C772DD39-91AE-45D7-AC57-497503B2713F', 'Entry 233', 'rain çay mañana quince garden rain naïve coat.', 1440288000123456, 1700000000746000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 133, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 233'),
(329, 5, 'BFF43CB4-B033-463F-9D81-989658B02296', 'Entry 234', 'rain 東京 rain straße Übung mañana çay.', 1440374400123456, 1700000000750000, 'Zoë’s test machine', 1, 1, 1700000001278000, 0, 1700000001279000, 0, 0, NULL, 0, NULL, 134, NULL, 0, 0, 0, 1, 1, NULL, 52, NULL),
(331, 2, '903E49F4-38B5-47E7-92C0-CE44BA3263B5', 'Entry 235', 'letter naïve straße coat bread.', 1440460800123456, 1700000000752000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 135, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 235'),
(332, 3, 'FBAB2F32-AF57-415E-B6CA-C183AC0B7634', 'Entry 236', 'garden naïve Übung naïve quince Übung Ærø çay straße план.', 1440547200123456, 1700000000756000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 136, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 236'),
(333, 4, 'E35CA092-9DC7-4380-B26F-452823EDB30F', 'Entry 237', 'bread Übung Kitchen Ærø план river Ærø naïve план letter.', 1440633600123456, 1700000000758000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 137, NULL, 0, 0, 0, 1, 1, 1700000000758000, NULL, 'entry 237'),
(334, 5, '31084341-F5A2-4255-A602-2DBA91A15C88', 'Entry 238', 'coat 東京 letter ποίημα çay tea 東京 東京.', 1440720000123456, 1700000000760000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001280000, 0, 0, NULL, 0, NULL, 138, NULL, 0, 0, 1, 1, 2, NULL, NULL, 'entry 238'),
(335, 1, 'E9AC056C-0929-42C9-8D3E-07204FFFC2A9', 'Entry 239', 'план mañana garden 서울 Ærø coat çay Ærø.', 1440806400123456, 1700000000764000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 139, NULL, 0, 0, 0, 2, 0, NULL, 53, 'entry 239'),
(336, 2, 'C9BE1156-C105-44CC-BBAC-F8DC651D38F4', 'Entry 240', 'rain tea naïve ποίημα garden straße quince.', 1440892800123456, 1700000000766000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 140, NULL, 0, 0, 0, 1, 1, 1700000000766000, NULL, NULL),
(337, 3, 'B843B569-110C-45B4-92DD-133C39A17FF9', 'Entry 241', 'çay 서울 ladder rain clock naïve.', 1440979200123456, 1700000000768000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 141, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 241'),
(338, 4, 'BD58494F-20BC-4692-B7A2-E649A6F3C716', 'Entry 242', 'quince clock 東京 Ærø Ærø rain straße.', 1441065600123456, 1700000000770000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001281000, 0, NULL, 142, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 242'),
(339, 5, 'E30FB61B-17F7-4A8B-B4BC-1EBDE17EC92C', 'Entry 243', 'план ladder river naïve clock straße quince river letter quince.', 1441152000123456, 1700000000772000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 143, NULL, 0, 0, 0, 1, 2, 1700000000772000, NULL, 'entry 243'),
(341, 2, 'D097C07A-4711-400C-9426-65CCA525F3F4', 'Entry 244', 'çay tea clock window river ποίημα.', 1441238400123456, 1700000000774000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 144, NULL, 0, 0, 0, 2, 0, NULL, 54, 'entry 244'),
(342, 3, '532BD74D-E40D-4BFC-B65A-9BAEC484629F', 'Entry 245', 'clock 東京 서울 naïve.', 1441324800123456, 1700000000776000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 145, NULL, 0, 0, 1, 3, 0, 1700000000776000, NULL, 'entry 245'),
(343, 4, '3A59FB6E-293F-40D2-AA36-57A747FE246F', 'Entry 246', 'garden 서울 tea ladder план naïve ladder Kitchen çay.', 1441411200123456, 1700000000780000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 146, NULL, 0, 0, 0, 1, 2, NULL, NULL, NULL),
(344, 5, '161D539F-5761-456A-AA0F-6A7AD3F3EDD6', 'Entry 247', 'tea 서울 mañana Ærø 서울 서울 bread Ærø river 東京.', 1441497600123456, 1700000000782000, 'Zoë’s test machine', 1, 1, 1700000001282000, 0, 1700000001283000, 0, 0, NULL, 1, 1700000001284000, 147, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 247'),
(345, 1, 'F60F4EA3-0674-4108-920B-6C4E505CA706', 'Entry 248', 'naïve clock bread mañana letter 東京 東京 Kitchen mañana.', 1441584000123456, 1700000000784000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 148, NULL, 0, 0, 0, 0, 0, 1700000000784000, NULL, 'entry 248'),
(346, 2, '7BE8EF9A-C94C-40A2-9A6B-D2A65BF1F808', 'Entry 249', 'rain rain coat bread clock план план quince.', 1441670400123456, 1700000000786000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 149, NULL, 0, 0, 0, 1, 1, NULL, 55, 'entry 249'),
(347, 3, '9298E76C-85B7-4D02-982F-B927EDCFA533', 'Entry 250', 'coat ladder tea tea tea Kitchen river mañana.', 1441756800123456, 1700000000788000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 150, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 250'),
(348, 4, '09A58845-0F38-42A5-9669-4BEA12866BCD', 'Entry 251', 'river coat Übung Kitchen bread Kitchen.', 1441843200123456, 1700000000790000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 151, NULL, 0, 0, 0, 1, 0, 1700000000790000, NULL, 'entry 251'),
(349, 5, '4722A834-9831-4F86-A042-8C3AD6A0EC30', 'Entry 252', 'garden rain 東京 ladder 東京 çay.', 1441929600123456, 1700000000794000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 152, NULL, 0, 1, 1, 1, 2, NULL, NULL, 'entry 252'),
(351, 2, '725EF1BE-9BDD-42DA-9449-64EECFF42480', 'Entry 253', 'план rain bread ladder letter mañana coat bread clock straße.', 1442016000123456, 1700000000796000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001285000, 0, NULL, 153, NULL, 1, 0, 0, 1, 2, 1700000000796000, NULL, 'entry 253'),
(352, 3, '8C176189-2E56-4B4A-8545-AA8321E3CC14', 'Entry 254', 'Übung 서울 план план clock garden garden.', 1442102400123456, 1700000000800000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 154, NULL, 0, 0, 0, 1, 0, NULL, 56, 'entry 254'),
(353, 4, '80A5724C-FC65-4051-87BC-5C69F9170CE8', 'Entry 255', 'ladder ladder Ærø rain.', 1442188800123456, 1700000000802000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001291000, 0, 0, NULL, 0, NULL, 155, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 255'),
(354, 5, 'B2E87E0F-FCFB-4F08-82AA-91670FB2EE19', 'Entry 256', 'river clock window window rain tea letter çay bread Kitchen.', 1442275200123456, 1700000000806000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 156, NULL, 0, 0, 0, 2, 0, 1700000000806000, NULL, 'entry 256'),
(355, 1, 'C6B212F2-5B5C-44D2-89B8-41842F26CF4B', 'Entry 257', 'ladder Ærø straße clock.', 1442361600123456, 1700000000808000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 157, NULL, 0, 0, 0, 3, 0, NULL, NULL, 'entry 257'),
(356, 2, '9275B1BF-C6B6-4AC5-A914-6E906F002743', 'Entry 258', 'план ποίημα Kitchen rain garden ladder 東京 window çay window clock.', 1442448000123456, 1700000000810000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 158, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 258'),
(357, 3, 'A3955633-71DA-46C0-8308-BB6C8109F7BD', 'Entry 259', 'letter window ποίημα.', 1442534400123456, 1700000000814000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 159, NULL, 0, 1, 1, 0, 0, 1700000000814000, 57, NULL),
(358, 4, '24C46FA4-6BCC-4CAF-B2EF-ACB31402AE75', 'Entry 260', '서울 coat ladder mañana ποίημα bread tea Ærø mañana Ærø.', 1442620800123456, 1700000000818000, 'Zoë’s test machine', 1, 1, 1700000001295000, 0, 1700000001296000, 0, 0, NULL, 0, NULL, 160, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 260'),
(359, 5, '02F54655-99F4-48B4-B5A4-0159B3DF3EA9', 'Entry 261', 'tea ποίημα clock mañana window.', 1442707200123456, 1700000000820000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 161, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 261'),
(361, 2, 'C3C22AB6-E6B4-479E-9C67-1789767608AD', 'Entry 262', 'Übung rain garden river bread window ladder 서울.', 1442793600123456, 1700000000822000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 162, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 262'),
(362, 3, 'FCF8F15D-AD7F-4594-B2DB-8711BFFC7767', 'Entry 263', 'window çay bread bread Kitchen rain.', 1442880000123456, 1700000000824000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 163, NULL, 0, 0, 0, 0, 3, NULL, NULL, 'entry 263'),
(363, 4, '67A7BD38-6E6D-41AA-ABDF-7FE555EB59BA', 'Entry 264', 'quince clock coat rain straße çay.', 1442966400123456, 1700000000826000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001297000, 0, NULL, 164, NULL, 0, 0, 0, 0, 0, 1700000000826000, 58, 'entry 264'),
(364, 5, 'E1959A96-5A33-4A61-861B-831F0A35AB98', 'Entry 265', 'naïve çay tea window çay çay çay ποίημα coat.', 1443052800123456, 1700000000830000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 165, NULL, 0, 0, 0, 1, 0, NULL, NULL, NULL),
(365, 1, '8BE6FFA1-7B12-4C85-B305-47F48E501968', 'Entry 266', 'ποίημα план план tea garden.', 1443139200123456, 1700000000834000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001298000, 166, NULL, 0, 0, 1, 1, 1, NULL, NULL, 'entry 266'),
(366, 2, '0B7BEA03-A71E-4672-8DFF-BEE8EE40B847', 'Entry 267', 'Ærø Übung 東京 window clock.', 1443225600123456, 1700000000836000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 167, NULL, 0, 0, 0, 0, 1, 1700000000836000, NULL, 'entry 267'),
(367, 3, '23B4FDAE-EFEC-48D0-BC83-961FDF5F370A', 'Entry 268', 'letter ποίημα Übung quince mañana tea bread Ærø tea Übung Übung.', 1443312000123456, 1700000000838000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 168, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 268'),
(368, 4, '4E37925E-D7CD-4FD9-B63E-CAB24D37FDC2', 'Entry 269', 'quince Kitchen 서울 ladder Übung.', 1443398400123456, 1700000000840000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 169, NULL, 0, 0, 0, 0, 0, NULL, 59, 'entry 269'),
(369, 5, 'F6A4BE65-A40D-41FA-AB73-349A48D9DCDB', 'Entry 270', '서울 rain letter.', 1443484800123456, 1700000000844000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 170, NULL, 0, 0, 0, 1, 1, 1700000000844000, NULL, 'entry 270'),
(371, 2, '9D604905-DD9E-4C81-B9A6-84F575A06E55', 'Entry 271', 'straße quince window Kitchen clock çay.', 1443571200123456, 1700000000848000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 171, NULL, 0, 0, 0, 0, 2, NULL, NULL, NULL),
(372, 3, '7789D007-1BAC-45AE-8E5F-456DB2C0573C', 'Entry 272', 'naïve ladder bread Übung 서울 bread.', 1443657600123456, 1700000000850000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001303000, 0, 0, NULL, 0, NULL, 172, NULL, 0, 0, 0, 2, 0, 1700000000850000, NULL, 'entry 272'),
(373, 4, 'A0576B9B-ACAC-45FD-AB18-124B6DCF80B6', 'Entry 273', 'garden план river rain ladder.', 1443744000123456, 1700000000854000, 'Zoë’s test machine', 1, 1, 1700000001304000, 0, 1700000001305000, 0, 0, NULL, 0, NULL, 173, NULL, 0, 0, 1, 0, 0, NULL, NULL, 'entry 273'),
(374, 5, '9349C21F-C1EB-40C4-B571-ADDBDD16F9FD', 'Entry 274', 'river ladder ποίημα letter ladder çay план bread ποίημα river ποίημα.', 1443830400123456, 1700000000858000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 174, NULL, 0, 0, 0, 2, 1, NULL, 61, 'entry 274'),
(375, 1, 'E016B055-477B-4F25-94F1-C23832416CD8', 'Entry 275', 'план straße ladder bread 東京.', 1443916800123456, 1700000000860000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001306000, 0, NULL, 175, NULL, 0, 0, 0, 1, 1, 1700000000860000, NULL, 'entry 275'),
(376, 2, '646D147A-80CB-4E6C-9D1A-C7E7DAF3EFCA', 'Entry 276', 'letter quince Kitchen clock quince coat çay 서울 서울.', 1444003200123456, 1700000000864000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 176, NULL, 1, 0, 0, 2, 1, NULL, NULL, 'entry 276'),
(377, 3, '7E9C3A5B-650C-4EF0-8D08-45F91ABF836E', 'Entry 277', 'letter straße window clock çay tea bread quince naïve river.', 1444089600123456, 1700000000866000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 177, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 277'),
(378, 4, '04223B87-4BA8-4344-9B78-576B0580D22C', 'Entry 278', 'river çay bread clock Übung clock ποίημα Kitchen ποίημα план.', 1444176000123456, 1700000000868000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 178, NULL, 0, 0, 0, 0, 2, 1700000000868000, NULL, NULL),
(379, 5, '35B65877-C39D-4D95-A4A7-35BF7510DFE7', 'Entry 279', 'tea garden window window window план ποίημα coat letter window mañana.', 1444262400123456, 1700000000870000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 179, NULL, 0, 0, 0, 1, 0, NULL, 62, 'entry 279'),
(381, 2, '47CC3EFC-C815-49FA-AC71-92D2364A4903', 'Entry 280', 'naïve bread ladder Übung çay river.', 1444348800123456, 1700000000872000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 180, NULL, 0, 0, 0, 0, 0, 1700000000872000, NULL, 'entry 280'),
(382, 3, '681EFD4E-45E2-4010-B520-B09197CBDDF4', 'Entry 281', '東京 bread quince çay clock ladder.', 1444435200123456, 1700000000874000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 181, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 281'),
(383, 4, '71DB406B-D8FB-4E3F-863B-DF9B36231D1C', 'Entry 282', 'план 東京 ποίημα clock план.', 1444521600123456, 1700000000876000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 182, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 282'),
(384, 5, '20B561CD-504C-4303-98C5-39D8D0AF926D', 'Entry 283', 'Übung letter river bread river.', 1444608000123456, 1700000000878000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 183, NULL, 0, 0, 0, 3, 0, 1700000000878000, NULL, 'entry 283'),
(385, 1, '2245CC54-201A-40E4-8A13-2C1CF8033473', 'Entry 284', 'план window çay straße coat Übung.', 1444694400123456, 1700000000882000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 184, NULL, 0, 0, 0, 2, 1, NULL, 63, NULL),
(386, 2, '5F812598-D280-4306-83D1-048CF6F20EBA', 'Entry 285', '서울 rain mañana garden clock план 東京 ladder bread Kitchen.', 1444780800123456, 1700000000886000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001307000, 185, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 285'),
(387, 3, 'DF482FC9-F3EC-4C8B-85B9-F6DE79AC8395', 'Entry 286', 'tea straße window tea mañana 東京 Übung bread garden Kitchen naïve.', 1444867200123456, 1700000000888000, 'Zoë’s test machine', 1, 1, 1700000001313000, 0, 1700000001314000, 0, 1, 1700000001308000, 0, NULL, 186, NULL, 0, 0, 0, 0, 0, 1700000000888000, NULL, 'entry 286'),
(388, 4, 'EE401FAB-247F-467C-BB0F-274481E7F28E', 'Entry 287', 'quince çay Übung tea ladder 서울 Ærø bread.', 1444953600123456, 1700000000890000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 187, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 287'),
(389, 5, '52CDC41F-3825-4D2F-8505-A27E9B3FBE0B', 'Entry 288', 'straße Kitchen window çay bread river tea naïve garden letter.', 1445040000123456, 1700000000892000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 188, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 288'),
(391, 2, 'BA708835-244A-4C1A-8C82-55C694692F2E', 'Entry 289', 'window garden ποίημα river letter mañana straße план.', 1445126400123456, 1700000000894000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001315000, 0, 0, NULL, 0, NULL, 189, NULL, 0, 0, 0, 1, 2, NULL, 64, 'entry 289'),
(392, 3, '80B46185-902C-479D-B0B2-D6F291E0B9A0', 'Entry 290', 'naïve garden clock çay план straße mañana river.', 1445212800123456, 1700000000896000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 190, NULL, 0, 0, 0, 0, 3, NULL, NULL, NULL),
(393, 4, 'CE8195DE-007C-4C15-94DB-4FB438C25B58', 'Entry 291', '東京 план window tea 서울 çay 東京 mañana naïve Kitchen letter.', 1445299200123456, 1700000000898000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 191, NULL, 0, 0, 0, 2, 1, 1700000000898000, NULL, 'entry 291'),
(394, 5, 'CEDF3889-7D8B-44BB-8DB0-FB6FA0ADF193', 'Entry 292', '서울 coat tea 서울 river straße ladder.', 1445385600123456, 1700000000900000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 192, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 292'),
(395, 1, '53216A79-E9D3-45AE-B6C8-C14738A135BB', 'Entry 293', 'ποίημα 東京 rain Kitchen letter naïve bread.', 1445472000123456, 1700000000902000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 193, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 293'),
(396, 2, 'C944F131-2344-477A-BBE3-E3B360865404', 'Entry 294', 'ποίημα tea river.', 1445558400123456, 1700000000904000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 194, NULL, 0, 0, 0, 0, 0, 1700000000904000, 65, 'entry 294'),
(397, 3, '17156323-BBA7-42BC-A188-034486670743', 'Entry 295', 'tea rain clock coat bread.', 1445644800123456, 1700000000908000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 195, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 295'),
(398, 4, '76F4FA4E-65AC-400B-8A53-5D349E7A1E3E', 'Entry 296', 'window Ærø river quince Übung ποίημα Kitchen Übung ladder river 서울.', 1445731200123456, 1700000000912000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 196, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 296'),
(399, 5, '0D87FF8F-53A2-436F-AFAB-DA4B7E6BCEB3', 'Entry 297', 'Kitchen coat ladder river Ærø ποίημα Ærø river план.', 1445817600123456, 1700000000914000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001316000, 0, NULL, 197, NULL, 0, 0, 0, 0, 1, 1700000000914000, NULL, NULL),
(401, 2, '391D44EB-BCB1-4065-8283-4ED7C86999A7', 'Entry 298', 'straße straße river план window window 東京 coat.', 1445904000123456, 1700000000916000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 198, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 298'),
(402, 3, '63EC892B-B8C0-4901-918F-D6D3CFBFDC05', 'Entry 299', 'garden tea window 東京 東京 ποίημα.', 1445990400123456, 1700000000918000, 'Zoë’s test machine', 1, 1, 1700000001322000, 0, 1700000001323000, 0, 0, NULL, 0, NULL, 199, NULL, 1, 0, 0, 2, 1, 1700000000918000, 66, 'entry 299'),
(403, 4, 'E4514064-9BE8-4274-B50F-0BC65BB38544', 'Entry 300', 'ποίημα 서울 план quince план 東京 план.', 1446076800123456, 1700000000922000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 200, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 300'),
(404, 5, 'BC8C51A4-A6E9-4FD5-BA59-D32AD942E079', 'Entry 301', 'mañana план tea coat straße ποίημα план tea 東京 ποίημα план.', 1446163200123456, 1700000000924000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 201, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 301'),
(405, 1, '4A275EF4-800A-4379-A7F5-A001FFEDD79A', 'Entry 302', 'clock naïve tea.', 1446249600123456, 1700000000926000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 202, NULL, 0, 0, 0, 1, 2, 1700000000926000, NULL, 'entry 302'),
(406, 2, 'A3271E06-C1CF-46BA-ACD1-7F90DBBD774C', 'Entry 303', 'letter 서울 quince Kitchen tea straße rain 東京 tea.', 1446336000123456, 1700000000928000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 203, NULL, 0, 0, 0, 0, 2, NULL, NULL, NULL),
(407, 3, 'D3548277-56F5-424C-A567-EA55712B9647', 'Entry 304', 'bread ποίημα clock план straße rain bread garden ladder garden ποίημα.', 1446422400123456, 1700000000930000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001324000, 204, NULL, 0, 0, 0, 2, 1, NULL, 67, 'entry 304'),
(408, 4, '154F6172-AF3B-47FD-BFE5-FBA39DB5220D', 'Entry 305', 'window bread river 서울.', 1446508800123456, 1700000000932000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 205, NULL, 0, 0, 0, 1, 0, 1700000000932000, NULL, 'entry 305'),
(409, 5, 'C5FFAFDA-0536-4120-8C69-1B5B62C5111E', 'Entry 306', 'bread clock Kitchen rain naïve tea tea bread план.', 1446595200123456, 1700000000934000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001329000, 0, 0, NULL, 0, NULL, 206, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 306'),
(411, 2, '7921398D-82C9-4233-8F07-ECF9477E4C0C', 'Entry 307', 'bread clock letter ποίημα план tea.', 1446681600123456, 1700000000936000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 207, NULL, 0, 0, 0, 3, 0, 1700000000936000, NULL, 'entry 307'),
(412, 3, '95E9E642-09A4-4BC7-ADA1-5BE94DA1C9FA', 'Entry 308', 'Kitchen bread river 東京.', 1446768000123456, 1700000000940000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001330000, 0, NULL, 208, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 308'),
(413, 4, '67595D16-6132-41FD-8E51-C45166950359', 'Entry 309', 'river Übung clock clock.', 1446854400123456, 1700000000944000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 209, NULL, 0, 0, 0, 0, 0, NULL, 68, NULL),
(414, 5, 'E6366353-DAAD-4FAD-8871-B44ED995FBBF', 'Entry 310', 'straße Übung straße 서울 ladder garden mañana bread straße.', 1446940800123456, 1700000000946000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 210, NULL, 0, 0, 0, 3, 0, 1700000000946000, NULL, 'entry 310'),
(415, 1, '9F054787-A688-4BDD-87DD-79E1D2816B75', 'Entry 311', 'tea Ærø 東京 rain Übung quince Kitchen Ærø quince letter garden.', 1447027200123456, 1700000000948000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 211, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 311'),
(416, 2, 'FB6FC2AA-E2AE-4B3A-B90F-D22B6D8ABCBA', 'Entry 312', 'garden quince naïve ladder bread coat mañana 서울 Kitchen garden.', 1447113600123456, 1700000000950000, 'Zoë’s test machine', 1, 1, 1700000001331000, 0, 1700000001332000, 0, 0, NULL, 0, NULL, 212, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 312'),
(417, 3, '32C2C0A1-43B4-4A2F-9A17-778E079F3E70', 'Entry 313', 'garden ladder coat 東京 Übung Übung план Kitchen rain tea Ærø.', 1447200000123456, 1700000000954000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 213, NULL, 0, 0, 0, 1, 0, 1700000000954000, NULL, 'entry 313'),
(418, 4, 'C4F5F4CC-7240-4281-98C0-908456F865CD', 'Entry 314', 'tea rain Ærø window Kitchen mañana coat çay план bread naïve.', 1447286400123456, 1700000000956000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 214, NULL, 0, 0, 0, 1, 0, NULL, 69, 'entry 314'),
(419, 5, '97C7D095-DD3C-4F62-92E8-D2EE8EED1B3D', 'Entry 315', 'window Übung Ærø bread coat Übung garden.', 1447372800123456, 1700000000958000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 215, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 315'),
(421, 2, '761AFA44-CF54-4BBB-8882-D0983E20BCDF', 'Entry 316', 'çay ποίημα çay 서울 letter.', 1447459200123456, 1700000000960000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 216, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 316'),
(422, 3, '712C1479-EA55-4BD9-8792-B0CC243EB6E5', 'Entry 317', 'план garden coat rain ladder clock clock.', 1447545600123456, 1700000000962000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 217, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 317'),
(423, 4, '9E6E0283-867B-4341-8CFC-ED8AA3C266C1', 'Entry 318', 'quince letter Übung rain straße.', 1447632000123456, 1700000000964000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 218, NULL, 0, 0, 0, 0, 1, 1700000000964000, NULL, 'entry 318'),
(424, 5, '4B739F37-E9E6-4C13-9446-2CC2F96537D5', 'Entry 319', 'garden window quince garden bread window.', 1447718400123456, 1700000000966000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 1, 1700000001333000, 0, NULL, 219, NULL, 0, 0, 0, 0, 0, NULL, 71, 'entry 319'),
(425, 1, 'DFBBF67E-6CBE-4C50-9F0C-5071921208F4', 'Groceries', 'milk and Groceries again', 1700000000967000, 1700000000969000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'groceries'),
(426, 2, 'C10630BF-790B-4651-BA5E-65631B6B9E91', 'AC/DC', 'is a title with a slash', 1700000000970000, 1700000000971000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000971000, NULL, 'ac/dc'),
(427, 3, '3A7C2BC7-2EA3-4506-B912-2CA8D1AFA8CA', 'x|y [z]', 'is one to escape', 1700000000972000, 1700000000973000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(428, 4, 'C8B9FF3A-5483-4D75-B9AC-99BC08B0199C', 'Éclair', 'of other letters', 1700000000974000, 1700000000975000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'éclair'),
(429, 5, 'AD4A3597-92E0-407E-B112-76DE17DB248F', '', '', 1700000000976000, 1700000000977000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000977000, NULL, ''),
(431, 2, '64E3F08E-C14D-4EB5-BCC3-54DF54D5683F', '', '', 1700000000978000, 1700000000979000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(432, 3, '4444F815-1A2B-4FA5-8473-21A82CDE1F38', 'By identifier', 'AD4A3597-92E0-407E-B112-76DE17DB248F and the empty one', 1700000000980000, 1700000000983000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000983000, NULL, 'by identifier'),
(433, 4, '1C824BDC-2B1D-4ACF-AF22-9C89ED341848', 'Links', '🎉 Groceries again !GROCERIES AC/DC x|y [z]', 1700000000984000, 1700000000995000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'links'),
(434, 5, 'BCABF629-A690-436E-9458-1241898E65FD', 'To Groceries', 'a link in a title', 1700000000996000, 1700000000998000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(435, 1, '8FDA2EF2-241D-47E4-A973-284AC83B3981', 'Chain one', 'Chain two', 1700000000999000, 1700000001001000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000001001000, NULL, 'chain one'),
(436, 2, '67929132-901F-4F93-B5CF-DF289E3566C1', 'Chain two', 'Chain three Chain one', 1700000001002000, 1700000001005000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'chain two'),
(437, 3, '3CEF731D-4CCB-4987-A965-1FA10ED8F3E5', 'Twin', 'the first, in the trash', 1420070401123456, 1700000001007000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001008000, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'twin'),
(438, 4, '5AC38AEF-CCB1-4314-BCB6-6749C62623B2', 'twin', 'the third', 1420070700123456, 1700000001010000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000001010000, NULL, 'twin'),
(439, 5, 'B4E4295C-E20C-43FD-BA9C-462A1804DA98', 'TWIN', 'the second: links lead here', 1420070600123456, 1700000001012000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'twin'),
(441, 2, 'D568C9FF-9C7C-45D7-A1B8-8E8913C048EF', 'Twin', 'made at no known time, in the trash', 1420070405123456, 1700000001014000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001015000, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000001014000, NULL, NULL),
(442, 3, '80DCDEE3-697F-45A9-9DF8-37B1120FB93B', 'Thrown away', 'and nothing took its place', 1420070410123456, 1700000001017000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001018000, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'thrown away'),
(443, 4, 'D87ED573-EEA8-4848-A0D2-A03CA9E46EBB', 'Same moment', 'of two the one with the lower key', 1420070420123456, 1700000001020000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'same moment'),
(444, 5, '3D526925-16AF-478D-9749-1B0235088550', 'Same moment', 'of two the one with the higher key', 1420070420123456, 1700000001022000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000001022000, NULL, 'same moment'),
(445, 1, '8A6B6846-28C1-43C8-81B3-A7C39B33A444', 'To twins', 'Twin thrown away Same moment Dateless', 1700000001023000, 1700000001028000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'to twins'),
(446, 2, 'D7A89124-AF33-49FB-B2E5-6DCBD6418B79', 'Dateless', 'what has no date was made first', NULL, 1700000001030000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'dateless'),
(447, 3, '5A1059F5-C8C2-4F86-8DA6-55849DEC14DC', 'Dateless', 'made later than none', 420070400123456, 1700000001032000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000001032000, NULL, 'dateless');
INSERT INTO "OVNote_large" ("pk", "text") VALUES
(1, '# It''s "quoted"

''''; DROP TABLE "OVNote"; --

#it''s# `''`'),
(2, '# Back\slash \\ C:\new\table

\n \0 \'' %s %d {} {0} ?1 :name @name $name'),
(3, CAST(X'23204E554C200020696E2061207469746C650A0A616E6420000020696E20612074657874' AS TEXT)),
(4, CAST(X'00' AS TEXT)),
(5, CAST(X'23204E554C200020616E64207468656E0A0A23626568696E642F6E756C205B5B47726F6365726965735D5D0A0A2D205B205D206D696C6B20000A0A6060600A636F646520000A6060600A' AS TEXT)),
(6, CAST(X'2320436F6E74726F6C732001021B5B306D7F0A0A62656C6C20072C20666F726D2066656564200C2C20766572746963616C20746162200B' AS TEXT)),
(7, CAST(X'23204C696E6520656E64730D0A0D0A6F6620616E6F746865722073797374656D0D0A2D205B205D206F6E650D0A2D205B785D2074776F0D0A2377696E646F77730D0A' AS TEXT)),
(8, CAST(X'23204F6C64206C696E6520656E64730D0D6F6620612074686972640D2D205B205D206F6E65' AS TEXT)),
(9, '﻿# A byte order mark

in front'),
(11, '# Separators of lines and paragraphs'),
(12, '# 🎉 Emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴

🧵 #🎉 #party/🥳 [[Groceries]]'),
(13, '# שלום עולם

טקסט מימין לשמאל, ‏12‎ #עברית'),
(14, '# مرحبا بالعالم

- [ ] الحليب ، الخبز
#عربي/يومي'),
(15, '# Café and café

Z͑ͯ̓a̢̡l̵go̢ ȩ̣́ #café'),
(16, '# Left over �� of halves

of pairs �'),
(17, '# Astral 𝕏 𐍈 𠜎

𝟘𝟙𝟚 #𝔱𝔞𝔤'),
(18, '# İstanbul ıspanak STRASSE ß ẞ ﬁ Ǆ

folded #İzmir #ıspanak'),
(19, '# Zero​width‍ and blanks　of all kinds

­'),
(21, '# 日本語の題名

本文です。#日本/料理

- [x] 買い物
- [ ] 掃除'),
(22, '# 한국어

한글 조합형 한 #한국'),
(23, ''),
(24, ' '),
(25, '


'),
(26, '#'),
(27, '# '),
(28, '-'),
(29, '---'),
(31, CAST(X'09' AS TEXT)),
(32, '[['),
(33, ']]'),
(34, '#home'),
(35, '#home #work

#ideas'),
(36, '![]()'),
(37, '<!-- nothing -->'),
(38, '```'),
(39, '# Fenced

```cpp
int main() { return ''\''''; }
```
'),
(41, '# Fenced with tildes

~~~
[[Groceries]] #notag
~~~'),
(42, '# Indented

    [[Groceries]]
'),
(43, CAST(X'2320496E64656E7465642062792061207461620A0A09636F6465' AS TEXT)),
(44, '# In a list

- item

      code of the item
'),
(45, '# In a quote

>     code
'),
(46, '# Spans only

`code` and ``two ` ticks`` and ```three``` in a line'),
(47, '# A paragraph
    goes on
    indented'),
(48, '# Deep list

- one
    - two
        - three
            - four'),
(49, CAST(X'23205461627309696E096C696E65730A0A6109622020202063' AS TEXT)),
(51, '# Shopping

- [ ] milk
- [x] bread
* [X] eggs
1. [ ] tea
- [] none
  - [ ] nested
> - [x] quoted'),
(52, '- [ ] a to-do for a title
- [x] and another'),
(53, '# Tags

#a/b/c #a/b #A/B/C #closed tag# (#in-parentheses) x#none \#none #home/kitchen, #ideas!'),
(54, '#first line of tags

# The title below

#home/kitchen/shelf'),
(55, '# Many levels

#1st/2nd/3rd/4th/5th/6th/7th/8th'),
(56, 'Setext title
============

and text'),
(57, '> # Quoted title
>
> - [ ] quoted'),
(58, '# [A link](https://example.com/a%20b?c="d") and ![an image](missing.png)

<https://example.com> [r]

[r]: /x ''y'''),
(59, '# *Emphasis* **strong** ~~gone~~ ==marked== `code` &amp; &copy; \*

<b>raw</b>'),
(61, '| a | b |
|---|---|
| 1 | [[x\|y]] |'),
(62, '1986\. A great year'),
(63, '[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[x]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]'),
(64, '>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>> deep'),
(65, '# A long day

' || replace(hex(zeroblob(180000)), '00', 'It rained, and nobody minded. ') || '
'),
(66, '# 🎉 A long feast

#party/🥳

' || replace(hex(zeroblob(240000)), '00', '- [ ] 🧁 for Zoë
') || '
and [[Groceries]], at last
'),
(67, '# A long program

' || replace(hex(zeroblob(200000)), '00', 'it''s prose, no code
') || '
```
end
```
'),
(68, '' || replace(hex(zeroblob(100000)), '00', ' ') || ''),
(69, '# Entry 0

naïve план rain Kitchen Kitchen.
- [ ] Kitchen ποίημα quince çay Übung.
- [x] rain tea Ærø план 東京 window 서울.
- [ ] coat Übung Kitchen mañana naïve çay mañana bread rain Ærø window.

See [[Entry 152]] and [[entry 225|another one]].

![](picture%200%20%C3%A4.png) [paper](<paper''s "0".pdf>)'),
(71, '# Entry 1

çay window çay ποίημα çay letter quince rain rain coat.

#ideas #two words#
'),
(72, '# Entry 2

naïve garden 東京 garden straße 서울 tea coat 東京.

#日本/料理 #café
- [ ] ποίημα clock ladder window 서울 ποίημα straße straße 東京 letter coat.
- [x] river window Kitchen Übung clock straße rain clock tea.
- [ ] clock rain river window window letter план rain.
'),
(73, '# Entry 3

rain rain bread план river 東京 river naïve bread Kitchen.

#reise/norge #reise/norge
- [ ] план bread clock rain 서울 tea план Kitchen план clock 서울.
- [ ] quince Ærø clock rain quince quince clock.

See [[Entry 35]] and [[entry 47|another one]].

    indented rain river Ærø.
'),
(74, '# Entry 4

naïve 서울 letter ποίημα 東京 clock.
- [x] 서울 naïve clock quince 서울 window river tea rain ladder quince.

See [[Entry 299]] and [[entry 37|another one]].
'),
(75, '# Entry 5

план quince ποίημα coat ποίημα garden mañana 서울 letter.
- [x] bread Übung garden 東京.
- [x] Übung quince quince Kitchen river Ærø window coat.
'),
(76, '# Entry 6

Übung tea coat çay ladder.

#home #two words#
- [x] ladder river Ærø 서울.
- [x] garden 서울 Kitchen river river window mañana quince tea çay.
- [ ] Übung clock 東京 rain straße straße garden garden river.

    indented garden 서울 coat Kitchen coat 東京.
'),
(77, '# Entry 7

naïve coat çay clock.
- [ ] 서울 çay 東京 rain ladder.
- [x] window naïve ladder clock Kitchen garden naïve straße ladder letter.

```
int answer = 42;
```

![](<picture 1 ä.png>) [paper](<paper''s "1".pdf>)'),
(78, '# Entry 8

ladder clock letter.
- [ ] ποίημα Übung ποίημα straße bread.

    indented ladder quince bread quince çay 서울 rain.
'),
(79, '# Entry 9

ladder план план quince.
- [ ] quince 서울 план ποίημα mañana coat ladder coat naïve ladder 東京.

See [[Entry 350]] and [[entry 93|another one]].

```
int answer = 42;
```
'),
(81, '# Entry 10

window bread mañana mañana tea Ærø Übung çay.

#work/übung #home
- [ ] rain план Übung coat straße bread 서울 Kitchen coat 서울.
'),
(82, '# Entry 11

letter window bread 서울 Ærø.

#reise/norge #日本/料理

```
int answer = 42;
```

    indented rain quince clock garden.
'),
(83, '# Entry 12

garden letter window.

#ideas/later #two words#
- [ ] letter letter 東京.
- [ ] coat tea 서울 clock план Übung 서울.
'),
(84, '# Entry 13

Kitchen river ποίημα 東京 Kitchen Ærø rain quince план river.

#café #work
- [ ] straße ποίημα garden quince rain straße rain 東京.
- [x] Übung tea letter 서울 clock 서울 straße clock 서울.
'),
(85, '# Entry 14

서울 garden river ποίημα rain clock çay çay naïve garden river.

#日本/料理 #home/kitchen

![](picture%202%20%C3%A4.png)'),
(86, '# Entry 15

tea naïve river coat.

#home #café
- [ ] Übung план tea river naïve tea naïve çay mañana straße straße.
- [x] tea план quince 東京 garden ποίημα quince Kitchen.

See [[Entry 145]] and [[entry 395|another one]].

```
int answer = 42;
```
'),
(87, '# Entry 16

Übung 서울 план window clock Übung garden quince ποίημα.

#home/kitchen #home
- [ ] bread straße mañana rain bread ladder.
- [x] coat letter window 東京 rain.
- [ ] ποίημα naïve çay ladder Kitchen.
'),
(88, '# Entry 17

서울 çay naïve quince Ærø tea clock naïve план.

#work/übung #home/kitchen/shelf
'),
(89, '# Entry 18

Kitchen ποίημα çay tea bread 서울 straße window river naïve river.
'),
(91, '# Entry 19

서울 letter river straße ποίημα ποίημα Ærø rain coat.

#café #日本/料理
- [ ] rain ποίημα garden ladder garden naïve naïve straße bread.
'),
(92, '# Entry 20

clock quince bread Kitchen quince 서울 Kitchen mañana.

#home/kitchen/shelf #work/übung
- [x] mañana tea mañana river rain rain river.
- [ ] naïve clock straße.
- [x] river quince Übung straße mañana.

    indented quince mañana coat tea.
'),
(93, '# Entry 21

서울 rain 東京 clock Übung.

#two words# #ideas
- [x] garden bread garden quince.
- [ ] rain straße Übung mañana quince 東京 window.

```
int answer = 42;
```

![](<picture 3 ä.png>)'),
(94, '# Entry 22

quince naïve Ærø coat letter çay.

#home #home/kitchen
- [x] 서울 mañana Kitchen window coat Ærø bread coat garden bread rain.
'),
(95, '# Entry 23

ladder mañana clock coat Übung straße Ærø çay çay garden.

#home/kitchen/shelf #home/kitchen/shelf
- [ ] window garden rain Kitchen.
- [x] план river план quince Kitchen clock план 서울.

See [[Entry 239]] and [[entry 180|another one]].
'),
(96, '# Entry 24

naïve coat garden 東京 ποίημα Übung Kitchen quince coat.

#work/übung #ideas
- [x] clock 서울 rain rain tea ποίημα garden.
- [x] Kitchen naïve quince Ærø river ποίημα clock.
- [x] rain rain river quince Kitchen letter ladder river coat.
'),
(97, '# Entry 25

coat 서울 garden çay bread tea bread clock план quince river.

#work #two words#
'),
(98, '# Entry 26

naïve quince coat quince план coat straße.

#work #ideas
- [ ] Übung straße window ladder coat tea garden coat naïve.
- [ ] rain naïve window window straße 서울 quince rain bread.
- [x] план Übung Übung clock quince çay mañana naïve.
'),
(99, '# Entry 27

東京 東京 clock letter çay Übung çay tea çay.
- [ ] Kitchen quince tea 東京 garden.
- [x] mañana 東京 garden tea rain clock Übung Übung letter window.
- [ ] window план Ærø.
'),
(101, '# Entry 28

quince ladder clock Ærø.

#home #work/übung

See [[Entry 97]] and [[entry 221|another one]].

```
int answer = 42;
```

![](picture%204%20%C3%A4.png) [paper](<paper''s "4".pdf>)'),
(102, '# Entry 29

straße naïve naïve window план Ærø straße quince bread bread.

#reise/norge #home/kitchen/shelf
- [x] river quince bread ποίημα rain tea çay Kitchen straße coat river.
'),
(103, '# Entry 30

ladder mañana Ærø rain naïve Ærø mañana ladder Ærø ποίημα river.

#home/kitchen #home/kitchen/shelf
'),
(104, '# Entry 31

ποίημα mañana 東京 Ærø rain tea rain letter mañana.
- [x] Kitchen 東京 Ærø.
- [x] план ladder Übung tea tea 서울 rain.

See [[Entry 206]] and [[entry 79|another one]].
'),
(105, '# Entry 32

Kitchen quince bread 서울 window ποίημα Kitchen rain Kitchen.
- [x] river ποίημα Ærø 東京 tea river tea.
'),
(106, '# Entry 33

coat quince Übung quince clock coat rain 서울.

#日本/料理 #home/kitchen/shelf
- [ ] Übung ποίημα Ærø naïve coat ποίημα.
- [x] çay ποίημα letter план garden.
- [ ] 東京 план coat window 서울.

    indented Übung çay ladder.
'),
(107, '# Entry 34

план Ærø straße tea quince window river Ærø letter tea ποίημα.

#ideas #café
- [ ] letter план çay план.
- [ ] letter river mañana çay straße.

See [[Entry 341]] and [[entry 333|another one]].

```
int answer = 42;
```
'),
(108, '# Entry 35

Kitchen river straße quince rain ποίημα Ærø bread.

![](<picture 5 ä.png>) [paper](<paper''s "5".pdf>)'),
(109, '# Entry 36

garden straße straße Ærø letter tea.

#ideas #reise/norge
- [ ] ποίημα Ærø straße.
'),
(111, '# Entry 37

Übung çay 서울.

#ideas #two words#
- [x] quince план window ποίημα straße rain river.
- [ ] 서울 ladder 서울 naïve quince window tea план план Kitchen Kitchen.
'),
(112, '# Entry 38

Ærø Kitchen tea rain çay.

#ideas/later #home/kitchen/shelf
- [ ] mañana straße river straße Übung quince clock letter 東京.

See [[Entry 249]] and [[entry 349|another one]].
'),
(113, '# Entry 39

bread tea straße clock straße ladder rain 東京 window clock 東京.

#ideas #work/übung
- [ ] 東京 план Ærø.
'),
(114, '# Entry 40

план çay window mañana quince quince.

#two words# #ideas/later
'),
(115, '# Entry 41

coat quince window coat ποίημα straße naïve 東京.

#ideas #home
'),
(116, '# Entry 42

tea straße ladder garden clock bread Ærø.
- [ ] ladder garden tea window план straße 서울 river coat.
- [ ] 서울 Kitchen Ærø план naïve.

See [[Entry 28]] and [[entry 315|another one]].

![](picture%206%20%C3%A4.png)'),
(117, '# Entry 43

letter rain coat letter ladder.

#work/übung #work/übung
- [ ] Kitchen quince ποίημα bread.
'),
(118, '# Entry 44

Kitchen rain ποίημα.

#work/übung #reise/norge
- [ ] garden garden river rain straße garden 서울 quince river Kitchen.
- [x] Übung Übung 서울 letter 東京 mañana.
- [ ] mañana 東京 straße план quince.
'),
(119, '# Entry 45

план rain 서울 letter.

#home #home
- [x] letter 東京 rain rain garden coat quince.
- [x] rain Übung river Kitchen Kitchen mañana bread garden.
- [ ] mañana mañana garden coat letter Übung.
'),
(121, '# Entry 46

naïve rain Ærø tea план letter quince.

#café #Work/Übung
- [ ] clock план window river clock mañana.
'),
(122, '# Entry 47

서울 Kitchen 東京 rain quince çay Ærø ladder план straße.

#Work/Übung #ideas/later
'),
(123, '# Entry 48

coat garden coat ποίημα quince ladder bread garden tea.
- [ ] window план ladder mañana bread straße naïve.
- [ ] план план ποίημα tea rain mañana garden Übung rain çay quince.
- [x] river mañana ποίημα bread river naïve tea.

See [[Entry 281]] and [[entry 265|another one]].
'),
(124, '# Entry 49

window rain quince 東京 rain ladder.

#home/kitchen/shelf #reise/norge
- [ ] tea tea ποίημα.

![](<picture 7 ä.png>)'),
(125, '# Entry 50

straße план rain letter naïve coat.

#ideas #home/kitchen
- [ ] naïve bread bread clock.
- [x] window clock window план çay garden rain 서울 straße.
- [ ] 東京 mañana rain ποίημα naïve bread coat çay.
'),
(126, '# Entry 51

bread naïve план window.

#ideas #home/kitchen/shelf
- [x] ποίημα Übung tea çay Kitchen window.
'),
(127, '# Entry 52

東京 straße letter ladder Ærø river 서울 ποίημα.

#日本/料理 #Work/Übung
- [ ] ποίημα naïve clock Übung план clock.
'),
(128, '# Entry 53

naïve coat Übung letter ladder clock garden quince.

#work/übung #日本/料理
- [x] tea 東京 quince rain.
- [x] window river coat tea mañana river.
'),
(129, '# Entry 54

straße tea coat Kitchen mañana.
- [ ] coat river clock çay.
- [ ] план mañana çay rain Ærø Übung naïve çay.
- [ ] 서울 window coat 서울.

```
int answer = 42;
```
'),
(131, '# Entry 55

Ærø window план tea.
- [ ] çay 서울 Ærø.
'),
(132, '# Entry 56

서울 ladder clock ladder letter rain ποίημα quince.
- [ ] mañana quince quince bread straße Ærø.
- [ ] tea straße river coat naïve bread Kitchen Übung.

![](picture%208%20%C3%A4.png) [paper](<paper''s "8".pdf>)'),
(133, '# Entry 57

çay ladder ποίημα garden straße çay Ærø coat naïve coat.
- [x] Übung window river clock çay naïve window bread ladder river.

    indented mañana 東京 straße river river river letter ποίημα Ærø tea.
'),
(134, '# Entry 58

東京 Übung coat letter bread straße 서울.

#Work/Übung #home/kitchen/shelf
'),
(135, '# Entry 59

Übung river window garden coat.

#home #日本/料理
- [x] план 東京 서울 rain bread.
- [ ] river Ærø clock Ærø quince çay letter.
- [ ] window garden quince quince letter ποίημα.
'),
(136, '# Entry 60

Ærø coat window garden quince letter coat 東京.

#two words# #日本/料理
- [ ] clock Übung window Kitchen.

See [[Entry 252]] and [[entry 127|another one]].
'),
(137, '# Entry 61

Übung ποίημα 東京 東京 rain.
'),
(138, '# Entry 62

tea ladder ladder bread 東京 quince.

#work #reise/norge
'),
(139, '# Entry 63

garden ποίημα Ærø coat.

![](<picture 9 ä.png>) [paper](<paper''s "9".pdf>)'),
(141, '# Entry 64

Übung ποίημα 東京 coat ladder план çay naïve window ladder coat.

#ideas/later #home
- [ ] clock coat 東京 rain ποίημα letter clock mañana clock bread.
- [ ] 서울 çay clock 서울 Übung Übung river window ποίημα.
- [ ] Übung mañana Kitchen rain window letter Kitchen window Übung ladder rain.

```
int answer = 42;
```
'),
(142, '# Entry 65

bread clock coat план river coat ladder coat.

#home #home/kitchen/shelf
- [x] ladder bread план Ærø quince mañana letter garden.
- [ ] Übung clock river straße mañana window garden tea Ærø.
- [x] Kitchen window river mañana план.
'),
(143, '# Entry 66

ποίημα window coat 서울 garden.

#Work/Übung #home/kitchen/shelf
- [x] window 東京 ποίημα garden bread Kitchen.
- [x] garden 東京 quince rain tea mañana Übung Ærø letter quince.
- [x] ποίημα river letter çay clock план rain coat.
'),
(144, '# Entry 67

Ærø rain straße.

#two words# #Work/Übung
- [ ] tea bread quince clock Kitchen ποίημα çay mañana 서울.
- [ ] çay garden mañana Übung.
'),
(145, '# Entry 68

ποίημα çay clock 서울 clock river garden mañana.
- [x] ladder straße ladder план план.
'),
(146, '# Entry 69

план mañana tea garden.

#reise/norge #reise/norge
- [x] naïve coat bread çay garden.

```
int answer = 42;
```
'),
(147, '# Entry 70

straße coat 東京 план clock clock Übung bread naïve bread.

#Work/Übung #Work/Übung

```
int answer = 42;
```

![](picture%2010%20%C3%A4.png)'),
(148, '# Entry 71

window Kitchen ladder 東京.
- [x] 서울 Ærø garden river clock ladder river ladder garden quince clock.

```
int answer = 42;
```
'),
(149, '# Entry 72

letter Kitchen Kitchen 東京 bread garden çay window ladder naïve.

#home/kitchen #Work/Übung
- [ ] clock quince coat quince Kitchen window ποίημα план Ærø 서울.
- [ ] rain Übung letter.

```
int answer = 42;
```
'),
(151, '# Entry 73

river bread Übung tea rain 서울 garden rain mañana naïve.
- [ ] naïve river quince clock план tea.
- [x] coat quince river letter Kitchen mañana bread window window.
'),
(152, '# Entry 74

tea Übung bread river.

#home/kitchen #home/kitchen/shelf
- [x] 서울 план window план 東京 clock window.
- [ ] window letter Ærø çay план Übung garden.
- [x] mañana tea river 東京 straße çay.

See [[Entry 278]] and [[entry 308|another one]].
'),
(153, '# Entry 75

東京 clock naïve Übung.

#work/übung #work/übung
- [x] coat 東京 quince bread river garden mañana ποίημα garden.
- [x] ladder 서울 tea 東京 tea coat tea çay letter rain.
- [ ] rain naïve letter çay clock Kitchen.
'),
(154, '# Entry 76

tea river tea bread window naïve.

#ideas/later #日本/料理
- [ ] rain Kitchen ladder tea Ærø rain garden rain.
- [x] ladder tea tea window letter quince river river ποίημα план.

See [[Entry 64]] and [[entry 112|another one]].

    indented naïve rain mañana coat Kitchen 東京 quince.
'),
(155, '# Entry 77

Kitchen Kitchen mañana straße clock river bread rain naïve mañana.
- [ ] window план 東京 garden ladder letter tea 서울.
- [x] tea coat Ærø mañana çay 東京 çay ποίημα 서울.
- [x] garden Ærø naïve straße Kitchen tea coat Übung letter.

![](<picture 11 ä.png>)'),
(156, '# Entry 78

bread çay quince ladder Kitchen план.

#work #reise/norge
- [ ] план coat mañana clock ladder letter river.
- [ ] straße naïve 서울 quince tea river naïve çay.
'),
(157, '# Entry 79

rain garden Übung window mañana 서울.

#café #work/übung
- [x] clock mañana river straße river window bread tea Ærø garden naïve.
- [x] straße ladder quince ποίημα план letter 東京 naïve 서울 letter.
'),
(158, '# Entry 80

mañana çay Kitchen план.
- [x] tea quince straße bread Übung çay garden quince çay.
'),
(159, '# Entry 81

straße tea letter bread garden coat window.
- [ ] tea Kitchen river bread ladder clock 東京 rain 東京 window 서울.
'),
(161, '# Entry 82

coat Kitchen coat rain.

#home/kitchen #café
'),
(162, '# Entry 83

Ærø coat straße bread Übung план river naïve garden.
- [x] çay letter clock clock bread.
'),
(163, '# Entry 84

quince 東京 Kitchen план Übung clock.
- [ ] план naïve letter coat план 東京 letter clock ladder.
- [ ] rain window Übung.
- [x] Kitchen Übung çay Übung ladder Ærø план straße river план план.

See [[Entry 123]] and [[entry 212|another one]].

![](picture%2012%20%C3%A4.png) [paper](<paper''s "12".pdf>)'),
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
'),
(165, '# Entry 86

서울 bread clock river bread 서울 window.

#work/übung #work
- [x] letter rain Ærø ποίημα 서울 bread 서울 garden Kitchen ποίημα.
- [ ] garden ποίημα план Übung.
'),
(166, '# Entry 87

ladder Kitchen план ladder Übung 東京.
- [x] coat letter garden quince letter ladder naïve Kitchen tea.
- [ ] window window Kitchen quince план.
- [ ] план Kitchen quince план window ποίημα straße.
'),
(167, '# Entry 88

план river план tea mañana 東京.
- [x] straße quince Ærø clock Übung bread Übung.
- [ ] river garden tea.
- [x] tea план garden план 東京 coat straße coat.

See [[Entry 346]] and [[entry 379|another one]].
'),
(168, '# Entry 89

bread Übung straße window letter coat 서울 letter naïve.
- [ ] letter naïve Kitchen letter.
- [x] letter Kitchen 서울 mañana çay план window ποίημα 서울 ladder.
- [ ] rain mañana naïve quince letter straße.
'),
(169, '# Entry 90

ladder bread window straße clock Ærø coat coat river ποίημα.

#work #home
'),
(171, '# Entry 91

window naïve coat naïve Übung Kitchen bread bread letter ladder 東京.

#home #café
- [ ] ladder straße window.

```
int answer = 42;
```

![](<picture 13 ä.png>) [paper](<paper''s "13".pdf>)'),
(172, '# Entry 92

ποίημα clock ladder naïve план clock Ærø quince.

#home/kitchen #ideas
- [x] Kitchen ποίημα window план.
- [ ] tea clock 東京 river.
'),
(173, '# Entry 93

東京 garden çay garden çay rain 서울 garden.

#Work/Übung #ideas
- [x] garden river ποίημα garden naïve tea garden.
- [x] window mañana bread 서울 план naïve river bread.
- [ ] bread straße Kitchen garden naïve garden 서울 garden.
'),
(174, '# Entry 94

서울 straße quince letter ladder 東京 coat garden çay.
- [x] 서울 bread план çay tea.
- [ ] çay Übung Übung ποίημα Übung çay 東京 naïve ποίημα çay.

See [[Entry 343]] and [[entry 230|another one]].
'),
(175, '# Entry 95

bread Ærø coat Ærø mañana ladder garden rain tea naïve.
- [ ] quince quince çay çay clock bread quince naïve river garden.

See [[Entry 178]] and [[entry 297|another one]].
'),
(176, '# Entry 96

tea ποίημα 東京 rain bread.

#home/kitchen/shelf #reise/norge
- [ ] Kitchen quince naïve Übung tea Übung straße ladder clock Übung 東京.
'),
(177, '# Entry 97

Kitchen çay çay çay rain 서울.
- [ ] straße quince tea Kitchen план naïve.
'),
(178, '# Entry 98

garden rain 東京 Übung 東京 garden Kitchen 東京 bread.

![](picture%2014%20%C3%A4.png)'),
(179, '# Entry 99

coat Kitchen план river tea rain 東京.

#home #home

See [[Entry 11]] and [[entry 115|another one]].
'),
(181, '# Entry 100

bread garden план Kitchen letter coat Übung clock ladder river çay.
- [ ] mañana river coat Kitchen Kitchen bread 東京 Ærø naïve coat.
- [ ] 서울 garden window coat Ærø ποίημα letter ladder naïve letter.
'),
(182, '# Entry 101

window 東京 clock garden.

#café #reise/norge
- [x] river coat Ærø clock straße ποίημα tea river garden 서울 bread.
- [x] çay ladder river çay Kitchen bread.
'),
(183, '# Entry 102

bread naïve garden çay letter.

#café #日本/料理
'),
(184, '# Entry 103

çay bread mañana ποίημα naïve clock letter clock mañana window coat.
- [ ] river garden çay.
- [ ] план 서울 naïve quince mañana coat.
- [x] ladder garden 東京 çay план план 서울.

See [[Entry 213]] and [[entry 293|another one]].
'),
(185, '# Entry 104

Kitchen quince 東京 garden 서울.
- [x] ladder Kitchen 東京 çay Ærø rain.
- [x] window bread 서울.
'),
(186, '# Entry 105

rain naïve quince tea çay tea rain.

#café #reise/norge

See [[Entry 194]] and [[entry 183|another one]].

![](<picture 15 ä.png>)'),
(187, '# Entry 106

ladder mañana Kitchen tea coat çay letter clock clock.

#café #home
'),
(188, '# Entry 107

Ærø Ærø quince bread Übung.

#ideas/later #ideas
- [ ] straße ποίημα 서울 naïve ποίημα naïve straße clock Ærø quince mañana.
- [ ] clock naïve bread план.
'),
(189, '# Entry 108

naïve ladder naïve garden Kitchen straße window coat ladder clock.

#日本/料理 #home/kitchen

See [[Entry 192]] and [[entry 41|another one]].
'),
(191, '# Entry 109

letter Kitchen naïve çay план straße naïve.

#ideas/later #café
- [ ] mañana Ærø coat garden mañana rain naïve coat.
- [x] ποίημα clock clock mañana Ærø coat Kitchen.
- [x] garden ladder coat çay letter план garden.
'),
(192, '# Entry 110

straße ladder Übung garden river coat.
- [x] coat window ποίημα.
'),
(193, '# Entry 111

letter bread Kitchen garden rain 東京 tea garden çay naïve.

#work/übung #ideas
'),
(194, '# Entry 112

план naïve mañana coat letter 東京 quince.

#reise/norge #日本/料理
- [ ] clock quince straße window ποίημα Ærø.
- [ ] letter mañana tea naïve.
- [ ] river mañana rain river coat clock Ærø.

![](picture%2016%20%C3%A4.png) [paper](<paper''s "16".pdf>)'),
(195, '# Entry 113

план bread quince river çay.
- [x] tea 東京 tea letter mañana.
- [ ] çay çay quince.
- [ ] ποίημα Ærø ποίημα план straße garden.
'),
(196, '# Entry 114

ποίημα letter 서울 naïve window mañana.
- [ ] rain çay mañana план rain план bread 서울 Kitchen 東京 Ærø.
- [x] Ærø 서울 letter letter 東京 clock.

See [[Entry 76]] and [[entry 165|another one]].
'),
(197, '# Entry 115

coat 東京 garden window tea Ærø naïve.

#home/kitchen #work

See [[Entry 166]] and [[entry 24|another one]].
'),
(198, '# Entry 116

straße план river clock 서울 Ærø straße river window çay tea.
- [x] river rain window 東京 straße quince.
- [x] 서울 서울 rain letter rain.
'),
(199, '# Entry 117

letter river ποίημα coat clock clock 東京 ποίημα Ærø.

#two words# #Work/Übung

See [[Entry 317]] and [[entry 232|another one]].
'),
(201, '# Entry 118

bread bread coat naïve naïve window tea bread.

#two words# #ideas
- [ ] Ærø mañana river quince.
- [x] 東京 Übung letter garden letter quince rain ladder tea.
- [x] 서울 coat mañana Übung tea.
'),
(202, '# Entry 119

çay letter quince clock tea naïve garden 서울 mañana clock план.

#café #home/kitchen/shelf

See [[Entry 156]] and [[entry 232|another one]].

    indented Übung garden rain.

![](<picture 17 ä.png>) [paper](<paper''s "17".pdf>)'),
(203, '# Entry 120

서울 window Ærø ladder rain letter bread 東京 ladder.

#ideas #home
- [ ] clock river letter Ærø letter.
- [x] план letter clock Kitchen rain Übung straße garden.
- [ ] Übung coat window clock.
'),
(204, '# Entry 121

coat naïve tea.

#home #日本/料理
- [x] river tea letter.
- [x] rain ladder ποίημα window ποίημα Kitchen план window tea.

See [[Entry 46]] and [[entry 168|another one]].
'),
(205, '# Entry 122

garden çay Übung naïve çay Übung план план garden.
- [ ] план 서울 서울 bread quince naïve ladder çay ποίημα straße.
- [ ] ladder Ærø clock tea mañana план clock river quince план rain.

```
int answer = 42;
```
'),
(206, '# Entry 123

mañana ladder план straße.
'),
(207, '# Entry 124

Kitchen rain Übung garden window.

#ideas/later #café
- [ ] ladder river coat straße clock mañana letter 서울 Kitchen 서울 tea.
- [ ] ladder naïve mañana ποίημα ποίημα quince.
- [ ] Kitchen ladder letter.

See [[Entry 338]] and [[entry 224|another one]].
'),
(208, '# Entry 125

window river ladder план naïve mañana quince Ærø.
- [x] rain ladder çay window.

```
int answer = 42;
```

    indented naïve 東京 çay.
'),
(209, '# Entry 126

Kitchen tea ladder план naïve mañana letter bread garden план straße.
- [ ] garden 서울 mañana bread.
- [x] Ærø 서울 Ærø.
- [x] rain ladder Kitchen Kitchen letter window план çay çay.

See [[Entry 105]] and [[entry 381|another one]].

![](picture%2018%20%C3%A4.png)'),
(211, '# Entry 127

çay Übung quince ποίημα rain letter mañana çay garden.

#日本/料理 #home
- [ ] Übung 서울 quince river straße 東京 Kitchen.
- [ ] rain quince çay naïve çay naïve rain window ποίημα çay river.
- [x] mañana straße rain garden Übung tea 東京.

See [[Entry 63]] and [[entry 307|another one]].
'),
(212, '# Entry 128

çay план river.

#home #work/übung

See [[Entry 287]] and [[entry 67|another one]].
'),
(213, '# Entry 129

garden çay çay çay ladder tea naïve straße river план.

#home/kitchen/shelf #reise/norge
- [ ] план ladder quince naïve 서울 quince river quince naïve coat.
- [x] ποίημα coat coat.

See [[Entry 212]] and [[entry 183|another one]].

    indented Kitchen ποίημα clock план 서울 naïve.
'),
(214, '# Entry 130

çay bread ladder straße mañana Kitchen bread.

#two words# #ideas
- [x] Übung bread naïve Kitchen clock Ærø garden window.

See [[Entry 165]] and [[entry 74|another one]].
'),
(215, '# Entry 131

Ærø garden coat tea 東京 서울 Kitchen çay naïve план.

#home/kitchen #home/kitchen/shelf
'),
(216, '# Entry 132

ποίημα çay bread quince letter.

#Work/Übung #ideas/later
- [ ] window ladder Ærø quince.
- [ ] Übung 서울 mañana bread Übung river river rain coat straße.
- [x] Ærø Übung ladder mañana 서울 bread straße mañana ladder.

```
int answer = 42;
```
'),
(217, '# Entry 133

quince tea window.

#café #work/übung
- [x] Übung garden ladder.
- [x] rain coat ποίημα mañana rain mañana straße straße çay quince clock.

See [[Entry 33]] and [[entry 142|another one]].

![](<picture 19 ä.png>)'),
(218, '# Entry 134

tea letter rain river garden straße.

#home #work/übung
- [ ] river clock ποίημα 東京.
- [x] Kitchen coat clock bread tea.
'),
(219, '# Entry 135

ποίημα çay ladder Ærø.

#日本/料理 #ideas/later
- [x] river 서울 window bread quince Kitchen tea mañana clock letter garden.

```
int answer = 42;
```

    indented coat letter çay naïve 서울 tea.
'),
(221, '# Entry 136

план straße Kitchen.

#Work/Übung #ideas/later
- [x] mañana 東京 план Ærø mañana.
- [ ] naïve tea Übung clock Ærø garden Ærø план garden tea.
'),
(222, '# Entry 137

bread naïve letter mañana Übung tea.

#ideas #home/kitchen/shelf

    indented 東京 tea straße straße план quince.
'),
(223, '# Entry 138

ladder letter straße bread quince.

#two words# #work
- [x] Übung 東京 Kitchen.
- [x] 東京 ποίημα river план naïve garden Übung çay tea.
'),
(224, '# Entry 139

tea ποίημα mañana coat 東京 mañana.

#café #home/kitchen/shelf
- [ ] straße rain Kitchen.

See [[Entry 14]] and [[entry 53|another one]].
'),
(225, '# Entry 140

garden 東京 river bread rain coat straße quince.

#work #home/kitchen

    indented quince Kitchen ποίημα 東京 garden naïve naïve 東京 ποίημα letter.

![](picture%2020%20%C3%A4.png) [paper](<paper''s "20".pdf>)'),
(226, '# Entry 141

straße Ærø quince straße naïve coat mañana 서울.
- [x] clock garden river coat mañana river çay tea letter river.
'),
(227, '# Entry 142

straße coat clock ladder mañana.

#home/kitchen/shelf #two words#
'),
(228, '# Entry 143

letter clock tea Ærø.

    indented naïve letter rain quince bread Übung план план çay.
'),
(229, '# Entry 144

straße çay rain bread.

#work/übung #two words#
- [ ] garden Ærø clock.
- [ ] rain Kitchen mañana.
- [ ] çay mañana ladder bread window.
'),
(231, '# Entry 145

quince ποίημα river Ærø straße Ærø clock план window 東京 Übung.

See [[Entry 308]] and [[entry 104|another one]].
'),
(232, '# Entry 146

clock Ærø 東京 東京 план ladder Übung tea 서울 çay план.

#Work/Übung #ideas/later
- [x] ladder naïve river 서울 rain.
'),
(233, '# Entry 147

Kitchen Übung Übung план river Übung rain mañana naïve Übung Übung.

#home/kitchen/shelf #work/übung
- [ ] river 東京 ladder quince straße bread Kitchen.
- [x] clock clock naïve bread.

![](<picture 21 ä.png>) [paper](<paper''s "21".pdf>)'),
(234, '# Entry 148

letter straße ladder.

#work #home/kitchen
- [ ] coat river clock Ærø 서울 çay ladder straße clock rain çay.
- [x] coat Kitchen naïve.
- [ ] Kitchen quince window.

See [[Entry 5]] and [[entry 334|another one]].
'),
(235, '# Entry 149

tea river quince.
- [x] 東京 ladder tea garden window rain naïve Ærø.
- [x] letter Kitchen 東京.
- [x] 서울 clock naïve ποίημα.
'),
(236, '# Entry 150

rain garden ladder mañana bread rain 東京 çay.

#ideas #work/übung
- [x] garden bread tea ladder bread letter bread план clock.
'),
(237, '# Entry 151

서울 window Kitchen.

#café #home
- [x] coat 서울 naïve rain çay 東京 bread tea Kitchen.
- [ ] Übung ποίημα coat quince mañana naïve tea clock.
- [ ] quince bread çay window ποίημα Übung.

```
int answer = 42;
```
'),
(238, '# Entry 152

window Ærø window tea river Kitchen план clock.

#two words# #ideas/later
- [x] garden Ærø çay.
- [ ] 서울 naïve çay çay Kitchen mañana rain 서울.
- [ ] план 東京 letter.
'),
(239, '# Entry 153

서울 ladder 東京 東京 Ærø clock 東京 ladder ποίημα quince план.
- [x] план Kitchen bread quince Kitchen mañana naïve çay rain rain.
- [x] bread Übung rain Übung naïve 서울 Kitchen.
'),
(241, '# Entry 154

straße çay Übung 東京 план rain 서울.

![](picture%2022%20%C3%A4.png)'),
(242, '# Entry 155

quince план window.

#home/kitchen/shelf #日本/料理
- [x] план Kitchen ladder window straße план naïve.
'),
(243, '# Entry 156

mañana bread Übung letter window bread Übung quince naïve quince çay.
- [ ] tea Ærø quince letter rain naïve coat clock çay.

See [[Entry 117]] and [[entry 372|another one]].
'),
(244, '# Entry 157

東京 tea bread Übung.
- [x] Ærø naïve ladder coat naïve 東京 garden план garden план rain.
- [ ] window window mañana letter.
- [x] garden план 東京 Kitchen bread clock clock Kitchen Kitchen.

    indented naïve ποίημα coat Ærø letter çay Übung Übung 서울 coat.
'),
(245, '# Entry 158

서울 mañana Kitchen straße garden rain çay.
- [x] mañana ladder quince.
- [x] bread quince naïve straße çay çay.
- [ ] coat bread Ærø Ærø rain bread garden.
'),
(246, '# Entry 159

план Ærø 東京 clock план garden window garden quince.

#café #work/übung
- [ ] straße garden 서울 Ærø Ærø 서울 garden.
- [ ] mañana straße clock window naïve.
'),
(247, '# Entry 160

tea river 東京 서울.
- [x] çay tea tea.

    indented rain clock Übung mañana coat window.
'),
(248, '# Entry 161

straße garden tea.
- [x] rain ποίημα 서울 Kitchen 서울 rain river clock.

![](<picture 23 ä.png>)'),
(249, '# Entry 162

東京 tea letter coat window 서울 Ærø clock.

#two words# #日本/料理
'),
(251, '# Entry 163

straße naïve ladder.
- [ ] mañana quince coat Ærø 서울.
- [ ] rain straße 東京 Ærø garden.
'),
(252, '# Entry 164

garden straße Übung window.

#work/übung #home/kitchen/shelf
'),
(253, '# Entry 165

clock çay garden bread naïve план coat Ærø Ærø ladder.

#café #home
- [x] çay 東京 東京 ποίημα tea river.
- [x] garden window rain Übung bread mañana straße letter Kitchen.

```
int answer = 42;
```
'),
(254, '# Entry 166

quince straße Kitchen ladder 東京 naïve naïve river.

#home/kitchen #work/übung
- [ ] ladder çay river.
- [x] clock Übung 서울 план clock naïve window план tea план ποίημα.
- [ ] 서울 Kitchen coat ladder straße river 서울 Kitchen.
'),
(255, '# Entry 167

çay rain river Übung window letter.
- [x] план clock bread çay mañana.
- [ ] ποίημα 東京 coat garden 서울 coat 서울 letter naïve.
'),
(256, '# Entry 168

coat rain clock rain bread straße.
- [ ] quince 東京 letter план.
- [x] tea naïve clock mañana bread naïve straße.
- [ ] Kitchen ποίημα window ποίημα straße window garden ποίημα план letter.

See [[Entry 115]] and [[entry 137|another one]].

![](picture%2024%20%C3%A4.png) [paper](<paper''s "24".pdf>)'),
(257, '# Entry 169

план tea letter bread tea.
- [ ] Kitchen план Kitchen.
'),
(258, '# Entry 170

window tea Kitchen çay Kitchen Übung.

#ideas/later #work/übung
- [x] coat quince bread Kitchen garden Ærø.
- [ ] ποίημα план Ærø план quince naïve ποίημα mañana.
- [ ] 서울 ladder straße clock çay çay Ærø rain.
'),
(259, '# Entry 171

Kitchen Kitchen garden.

#reise/norge #café
- [x] план quince план Übung.
- [x] Übung river clock tea ladder Übung.
- [x] 서울 ποίημα naïve ποίημα.
'),
(261, '# Entry 172

mañana naïve 서울 ποίημα naïve mañana Ærø.

#work #reise/norge
- [ ] rain river coat window план план ladder coat ladder.
- [x] garden straße mañana letter план river quince.

See [[Entry 44]] and [[entry 128|another one]].
'),
(262, '# Entry 173

mañana план ladder window clock bread 서울 mañana 서울 Kitchen ποίημα.

#reise/norge #two words#
- [ ] çay coat garden Kitchen straße letter 서울.
'),
(263, '# Entry 174

mañana quince coat mañana coat window 東京 window Übung.

#日本/料理 #home/kitchen/shelf
- [x] bread rain rain straße 서울 ποίημα.
- [x] ποίημα letter 東京 straße clock coat.
- [x] window 서울 bread garden.

```
int answer = 42;
```
'),
(264, '# Entry 175

ladder Ærø bread clock window coat ποίημα Kitchen ποίημα.

#home #日本/料理
- [ ] quince rain quince naïve план window.
- [x] garden bread tea.
- [x] 東京 ladder Übung window mañana Ærø Ærø coat bread.

```
int answer = 42;
```

![](<picture 25 ä.png>) [paper](<paper''s "25".pdf>)'),
(265, '# Entry 176

window 서울 Kitchen Ærø clock.
- [x] план clock clock план 서울 bread coat naïve coat.
- [ ] straße garden mañana 서울 garden quince straße ποίημα clock.
- [x] window naïve Übung çay tea 東京 clock rain bread.

```
int answer = 42;
```
'),
(266, '# Entry 177

mañana letter план mañana.
- [x] план Kitchen çay garden garden 서울 서울 window.
'),
(267, '# Entry 178

ποίημα bread naïve.

#café #home/kitchen
'),
(268, '# Entry 179

tea 東京 quince rain mañana.

#café #Work/Übung
'),
(269, '# Entry 180

bread letter coat mañana bread naïve.

#home/kitchen/shelf #日本/料理
- [x] 서울 naïve bread rain naïve.
- [ ] ladder naïve river план clock Kitchen 東京 mañana.
- [x] letter Übung çay naïve.
'),
(271, '# Entry 181

Übung bread quince letter window river coat ποίημα план mañana 서울.
- [x] план Übung window letter.
- [x] garden garden window mañana clock straße clock mañana.
- [x] letter Kitchen 東京 çay straße straße rain river.
'),
(272, '# Entry 182

東京 Übung 東京.

#home/kitchen/shelf #reise/norge
- [x] Übung ladder ποίημα rain план river ladder Kitchen mañana river.

    indented Übung straße çay letter tea Ærø.

![](picture%2026%20%C3%A4.png)'),
(273, '# Entry 183

naïve rain ποίημα garden план план quince.
- [x] 서울 window 서울 план rain straße garden Ærø window Ærø Kitchen.

    indented letter straße coat 서울.
'),
(274, '# Entry 184

naïve naïve river Übung window bread ladder 東京.
- [x] tea çay çay clock garden clock çay.

See [[Entry 104]] and [[entry 31|another one]].
'),
(275, '# Entry 185

letter план window Kitchen quince Übung clock çay letter çay.
- [ ] naïve straße план clock.
- [ ] план garden ladder 東京 coat garden quince.
- [x] letter ποίημα Kitchen Kitchen straße Ærø naïve Übung garden quince clock.

```
int answer = 42;
```
'),
(276, '# Entry 186

coat coat tea window mañana план naïve Kitchen tea garden.

#two words# #home/kitchen

See [[Entry 194]] and [[entry 38|another one]].

```
int answer = 42;
```
'),
(277, '# Entry 187

bread garden clock clock garden rain coat quince rain.

#work/übung #two words#
'),
(278, '# Entry 188

mañana 서울 tea bread 서울 letter ποίημα coat.

#reise/norge #work/übung
- [ ] coat план ποίημα çay clock river quince rain.

```
int answer = 42;
```
'),
(279, '# Entry 189

ποίημα ποίημα ποίημα rain 서울 naïve çay window garden garden.

#work #Work/Übung
- [ ] ποίημα naïve Kitchen Übung quince window river Ærø 서울.

![](<picture 27 ä.png>)'),
(281, '# Entry 190

straße ladder Übung quince Ærø çay Übung.

#日本/料理 #two words#
- [ ] Kitchen 東京 mañana 東京 clock 東京 ladder window quince.

See [[Entry 388]] and [[entry 335|another one]].
'),
(282, '# Entry 191

bread Übung план rain.
- [ ] rain straße Übung garden coat Ærø naïve quince quince.
- [ ] coat rain 東京 bread tea rain çay ποίημα 서울.
'),
(283, '# Entry 192

rain çay Übung letter straße.

#work/übung #two words#
- [ ] clock river 서울 naïve coat clock window.
- [x] letter Übung Kitchen straße window çay 서울 çay tea 서울.

```
int answer = 42;
```
'),
(284, '# Entry 193

letter coat Übung mañana rain.
- [x] план tea letter ποίημα river coat naïve river.
- [x] ποίημα 東京 straße 東京 Übung rain.
- [ ] letter Kitchen Übung quince план Übung naïve garden план quince.
'),
(285, '# Entry 194

東京 rain clock naïve çay window 서울.

#reise/norge #home/kitchen/shelf
- [ ] river window river coat ladder bread.
- [x] план garden Kitchen tea garden çay.

See [[Entry 194]] and [[entry 134|another one]].
'),
(286, '# Entry 195

mañana план 東京 서울 çay Ærø Ærø Übung 서울.

#home #home
- [x] river Kitchen rain 서울 Übung 東京 bread Übung ladder.
- [ ] план mañana coat 東京 Übung Ærø план.
- [x] ποίημα clock rain ladder straße.

See [[Entry 228]] and [[entry 210|another one]].
'),
(287, '# Entry 196

ladder rain 東京 mañana naïve Kitchen naïve rain tea.
- [ ] tea naïve coat.
- [x] Übung Ærø window rain 서울 garden ladder 서울 план 東京 bread.
- [ ] quince window ποίημα bread.

```
int answer = 42;
```

![](picture%2028%20%C3%A4.png) [paper](<paper''s "28".pdf>)'),
(288, '# Entry 197

план naïve 東京 Kitchen coat ποίημα 서울 letter mañana letter window.

#home #café
- [x] Ærø Ærø window план letter river Kitchen план letter план 東京.
'),
(289, '# Entry 198

서울 straße naïve quince garden window straße garden.

#home/kitchen/shelf #home
- [ ] bread tea window straße çay Kitchen naïve ladder.
- [x] quince план tea letter letter 서울 çay naïve.

    indented bread Ærø window çay Übung.
'),
(291, '# Entry 199

river tea coat coat.

#two words# #home/kitchen
- [ ] naïve naïve clock rain letter window план garden план.
'),
(292, '# Entry 200

naïve Ærø план ladder river.

#ideas/later #work/übung
- [x] çay ladder план.
- [x] letter coat tea clock garden tea.
- [ ] bread Kitchen çay quince ladder Kitchen bread naïve ποίημα 東京.

    indented garden river ladder letter naïve rain.
'),
(293, '# Entry 201

ποίημα tea 東京 tea tea quince garden mañana coat clock.

#work/übung #日本/料理
- [ ] Ærø quince 東京.

See [[Entry 242]] and [[entry 318|another one]].

    indented 서울 river bread coat ποίημα tea coat ladder naïve letter tea.
'),
(294, '# Entry 202

letter çay mañana ποίημα 서울 bread window river 東京 garden coat.
- [ ] çay çay garden straße clock.
- [x] letter Kitchen garden letter window Ærø clock bread clock.
- [x] ποίημα çay ladder Übung coat window 東京 window river Ærø.

```
int answer = 42;
```
'),
(295, '# Entry 203

naïve план letter garden straße window çay naïve quince window window.

#ideas #work/übung
- [x] coat letter naïve river Ærø.
- [x] garden quince Ærø mañana bread.
- [ ] coat letter ποίημα Ærø Übung.

![](<picture 29 ä.png>) [paper](<paper''s "29".pdf>)'),
(296, '# Entry 204

rain план 東京 Ærø Ærø ποίημα ladder.

#ideas #reise/norge

See [[Entry 142]] and [[entry 84|another one]].

```
int answer = 42;
```
'),
(297, '# Entry 205

garden план bread ποίημα naïve mañana план mañana bread garden.

#work #café
- [x] план план ladder Ærø.
- [ ] letter rain clock план window ποίημα.

See [[Entry 40]] and [[entry 13|another one]].
'),
(298, '# Entry 206

quince Kitchen 서울 план план ποίημα ποίημα naïve bread.
- [ ] letter garden window ladder mañana ποίημα mañana.
'),
(299, '# Entry 207

東京 план Übung mañana.
'),
(301, '# Entry 208

ladder план план.
- [ ] window letter rain quince naïve garden river ladder garden mañana 서울.
- [x] Kitchen Kitchen river naïve ποίημα.
- [ ] naïve mañana rain çay bread.
'),
(302, '# Entry 209

naïve window letter straße Kitchen.

#home/kitchen/shelf #two words#
- [x] план river ποίημα river naïve ποίημα river straße çay 서울 план.
- [ ] clock garden Übung quince план 서울 window quince Ærø.
'),
(303, '# Entry 210

quince window Kitchen.

#Work/Übung #Work/Übung
- [x] Kitchen mañana naïve 서울 clock coat bread 서울 ladder.
- [x] straße ποίημα river rain naïve ladder letter 東京.

![](picture%2030%20%C3%A4.png)'),
(304, '# Entry 211

ποίημα tea window Ærø clock Übung.

#café #work/übung
- [x] план quince 東京 window naïve quince mañana quince bread bread quince.
- [x] tea quince letter.

```
int answer = 42;
```
'),
(305, '# Entry 212

tea rain Ærø naïve naïve naïve coat naïve bread Kitchen.
- [ ] план mañana tea naïve ladder.
- [ ] clock план ποίημα rain quince.
'),
(306, '# Entry 213

coat план straße mañana Kitchen garden план river letter mañana.

#ideas/later #home/kitchen
- [ ] naïve Übung straße çay letter rain Kitchen mañana naïve naïve.

See [[Entry 391]] and [[entry 93|another one]].

```
int answer = 42;
```
'),
(307, '# Entry 214

東京 mañana 서울 clock çay rain çay mañana 東京 river.

#日本/料理 #home
- [ ] план ποίημα rain Kitchen.
- [x] garden straße naïve clock.
'),
(308, '# Entry 215

letter çay çay clock ποίημα ποίημα Übung rain Übung Ærø 서울.
- [ ] window letter letter.
- [x] garden ποίημα straße Kitchen window Übung.
- [ ] garden coat mañana naïve letter 東京 서울.
'),
(309, '# Entry 216

clock clock çay window tea.

#Work/Übung #work/übung
- [x] clock mañana straße çay tea garden bread garden ποίημα window window.
'),
(311, '# Entry 217

東京 naïve 서울.

#café #ideas
- [ ] window 東京 ποίημα bread coat letter bread Ærø Kitchen.
- [x] Übung Übung window ladder план naïve ladder clock.

![](<picture 31 ä.png>)'),
(312, '# Entry 218

bread Kitchen letter.

#ideas #two words#

See [[Entry 111]] and [[entry 271|another one]].

```
int answer = 42;
```
'),
(313, '# Entry 219

mañana çay 東京 ποίημα river garden rain çay naïve Übung.

#two words# #ideas/later
- [x] 서울 서울 letter coat.
- [x] bread çay clock ποίημα Ærø ποίημα tea план.
- [x] clock letter quince Ærø ladder quince 東京 straße mañana.

See [[Entry 245]] and [[entry 395|another one]].
'),
(314, '# Entry 220

çay ladder 서울 ladder river coat rain ladder.

#ideas #reise/norge
- [x] garden quince bread clock tea.
- [ ] garden Übung mañana river coat.
- [x] план 東京 Kitchen quince naïve ladder 서울 letter coat Kitchen mañana.
'),
(315, '# Entry 221

ladder garden river Übung.

#Work/Übung #日本/料理
'),
(316, '# Entry 222

tea naïve letter window Kitchen mañana coat bread Übung bread.

#two words# #work
'),
(317, '# Entry 223

clock mañana rain ladder clock bread window 東京.

#reise/norge #home/kitchen

```
int answer = 42;
```

    indented 東京 river Übung ποίημα ladder rain river naïve Kitchen.
'),
(318, '# Entry 224

ladder bread Ærø ladder coat coat window mañana tea garden.

#ideas #ideas

![](picture%2032%20%C3%A4.png) [paper](<paper''s "32".pdf>)'),
(319, '# Entry 225

Übung straße Ærø naïve quince Übung river bread mañana ποίημα coat.

#Work/Übung #home/kitchen
- [x] quince Kitchen ποίημα letter.
- [ ] план straße window 東京 rain Übung coat coat.
- [ ] bread straße quince naïve quince mañana Übung ποίημα 서울 tea.

See [[Entry 369]] and [[entry 363|another one]].
'),
(321, '# Entry 226

план letter mañana river quince план clock clock.

#ideas #Work/Übung
- [ ] mañana window straße Kitchen river mañana coat.
- [x] Ærø letter mañana çay Ærø quince rain çay çay.
'),
(322, '# Entry 227

garden window letter.

    indented 東京 Übung garden bread coat bread.
'),
(323, '# Entry 228

clock window bread Übung letter tea rain mañana план.
- [ ] window clock garden çay ladder clock letter clock ποίημα naïve.
- [x] quince river 東京 letter.
'),
(324, '# Entry 229

clock window straße clock ποίημα план naïve 東京.
- [x] quince quince ποίημα ladder Ærø 서울 Kitchen rain çay mañana ladder.
- [x] garden naïve garden river bread naïve.
- [x] clock Ærø clock naïve.

```
int answer = 42;
```
'),
(325, '# Entry 230

ποίημα garden mañana Kitchen план quince mañana coat tea 東京.

#home/kitchen #work
- [ ] naïve straße çay coat ποίημα.
- [x] coat bread garden window quince rain план Ærø ποίημα straße.
'),
(326, '# Entry 231

garden ποίημα straße window naïve план mañana.

#work #two words#

See [[Entry 240]] and [[entry 334|another one]].

![](<picture 33 ä.png>) [paper](<paper''s "33".pdf>)'),
(327, '# Entry 232

clock letter bread.

#work #two words#
- [x] ποίημα naïve straße ladder rain ladder çay ποίημα план 東京 clock.
- [x] Kitchen Kitchen ladder çay 東京 çay bread Kitchen.
- [ ] window ladder 서울 straße bread straße window clock.

```
int answer = 42;
```
'),
(328, '# Entry 233

rain çay mañana quince garden rain naïve coat.
- [ ] coat Kitchen garden ladder ποίημα 서울.
- [x] rain naïve mañana план.
- [ ] mañana 東京 ποίημα Kitchen.
'),
(329, '# Entry 234

rain 東京 rain straße Übung mañana çay.

#work #home/kitchen
- [ ] Kitchen Übung tea tea naïve 서울 coat ποίημα clock.
- [x] naïve rain tea clock Ærø straße river clock clock.

See [[Entry 161]] and [[entry 365|another one]].
'),
(331, '# Entry 235

letter naïve straße coat bread.

#home/kitchen/shelf #home/kitchen/shelf
'),
(332, '# Entry 236

garden naïve Übung naïve quince Übung Ærø çay straße план.

See [[Entry 10]] and [[entry 392|another one]].
'),
(333, '# Entry 237

bread Übung Kitchen Ærø план river Ærø naïve план letter.
- [ ] план quince tea river 東京 garden ladder.
- [x] ladder 東京 tea план garden coat quince.
'),
(334, '# Entry 238

coat 東京 letter ποίημα çay tea 東京 東京.
- [ ] bread letter план çay Übung Kitchen.
- [ ] straße bread ποίημα Kitchen Ærø garden ποίημα window 서울 Ærø bread.
- [x] 東京 river letter clock clock coat 東京.

![](picture%2034%20%C3%A4.png)'),
(335, '# Entry 239

план mañana garden 서울 Ærø coat çay Ærø.
- [x] coat çay Übung 東京 Übung quince.
- [x] Ærø план Ærø naïve clock çay coat naïve straße.

See [[Entry 245]] and [[entry 356|another one]].

```
int answer = 42;
```

    indented rain план window 東京 東京 東京 coat naïve.
'),
(336, '# Entry 240

rain tea naïve ποίημα garden straße quince.

#ideas #work/übung
- [x] mañana river straße Kitchen 서울 garden river Kitchen Übung naïve letter.
- [ ] Übung 東京 straße coat ladder 서울 coat bread 東京 ladder mañana.
'),
(337, '# Entry 241

çay 서울 ladder rain clock naïve.
'),
(338, '# Entry 242

quince clock 東京 Ærø Ærø rain straße.

#home/kitchen/shelf #work
'),
(339, '# Entry 243

план ladder river naïve clock straße quince river letter quince.

#work #ideas/later
- [ ] Ærø tea clock ποίημα letter çay mañana.
- [ ] ποίημα Ærø 東京 tea.
- [x] çay window 서울 Übung 東京.

```
int answer = 42;
```
'),
(341, '# Entry 244

çay tea clock window river ποίημα.
- [x] tea quince Ærø Übung coat window Übung mañana план straße.
- [x] quince план план coat river.
'),
(342, '# Entry 245

clock 東京 서울 naïve.

#work #ideas/later
- [x] ποίημα 東京 çay Kitchen Kitchen bread çay coat bread.
- [x] bread ladder naïve.
- [x] Ærø 東京 rain quince 東京 rain naïve 東京 Kitchen river quince.

![](<picture 35 ä.png>)'),
(343, '# Entry 246

garden 서울 tea ladder план naïve ladder Kitchen çay.
- [ ] window coat window çay tea.
- [x] letter rain 東京 mañana river.
- [ ] river 서울 tea garden Übung mañana Übung Kitchen straße Übung.

See [[Entry 371]] and [[entry 13|another one]].
'),
(344, '# Entry 247

tea 서울 mañana Ærø 서울 서울 bread Ærø river 東京.
- [x] ποίημα 東京 Ærø letter Ærø 서울 river.
- [x] coat Kitchen river quince Ærø.
- [ ] letter letter Übung Ærø quince.
'),
(345, '# Entry 248

naïve clock bread mañana letter 東京 東京 Kitchen mañana.

#ideas/later #home/kitchen
'),
(346, '# Entry 249

rain rain coat bread clock план план quince.

#work #work
- [x] Ærø tea window rain ποίημα coat rain ladder Ærø.
- [ ] ποίημα straße garden letter mañana bread 서울 straße bread straße.
'),
(347, '# Entry 250

coat ladder tea tea tea Kitchen river mañana.

#日本/料理 #ideas
- [ ] tea straße window.

```
int answer = 42;
```
'),
(348, '# Entry 251

river coat Übung Kitchen bread Kitchen.
- [x] ποίημα straße letter.
'),
(349, '# Entry 252

garden rain 東京 ladder 東京 çay.

#reise/norge #reise/norge
- [ ] window bread letter ladder Ærø quince window clock.
- [x] Übung letter window план tea clock window.
- [ ] Kitchen mañana çay çay ποίημα bread naïve garden ladder tea план.

See [[Entry 174]] and [[entry 242|another one]].

    indented naïve Übung Übung tea quince 서울 naïve.

![](picture%2036%20%C3%A4.png) [paper](<paper''s "36".pdf>)'),
(351, '# Entry 253

план rain bread ladder letter mañana coat bread clock straße.

#home/kitchen/shelf #work
- [ ] ladder mañana letter coat 서울 Kitchen coat.
- [x] window rain window tea naïve naïve 東京 東京 bread coat.
- [ ] letter river mañana.
'),
(352, '# Entry 254

Übung 서울 план план clock garden garden.
- [x] clock river bread çay bread garden coat Ærø coat coat.

See [[Entry 333]] and [[entry 141|another one]].
'),
(353, '# Entry 255

ladder ladder Ærø rain.

#home/kitchen/shelf #ideas/later
- [ ] naïve Kitchen quince clock rain Ærø Übung 東京 coat naïve tea.
- [x] tea çay Kitchen window mañana.
- [x] letter river rain garden 서울 clock çay quince window.

```
int answer = 42;
```
'),
(354, '# Entry 256

river clock window window rain tea letter çay bread Kitchen.

#ideas #two words#
- [x] letter 서울 tea ladder bread Kitchen Kitchen.
- [x] mañana Übung river tea window ladder bread clock bread bread 東京.

See [[Entry 339]] and [[entry 250|another one]].

    indented ποίημα river bread garden tea.
'),
(355, '# Entry 257

ladder Ærø straße clock.

#home/kitchen/shelf #home/kitchen/shelf
- [x] Kitchen ποίημα quince garden Kitchen letter.
- [x] Kitchen naïve Übung letter rain straße rain straße.
- [x] straße window Ærø 서울 window Übung coat naïve quince letter mañana.
'),
(356, '# Entry 258

план ποίημα Kitchen rain garden ladder 東京 window çay window clock.

#home #home
- [ ] ladder letter ladder план bread garden Ærø straße план tea.

```
int answer = 42;
```
'),
(357, '# Entry 259

letter window ποίημα.

See [[Entry 366]] and [[entry 218|another one]].

![](<picture 37 ä.png>) [paper](<paper''s "37".pdf>)'),
(358, '# Entry 260

서울 coat ladder mañana ποίημα bread tea Ærø mañana Ærø.

#日本/料理 #ideas
- [x] ποίημα bread bread garden ladder.
- [ ] window 東京 ποίημα garden naïve 東京 東京 서울 Ærø.

See [[Entry 162]] and [[entry 81|another one]].
'),
(359, '# Entry 261

tea ποίημα clock mañana window.

#home/kitchen #café
- [ ] 東京 bread 서울 coat ποίημα Übung naïve quince naïve coat 서울.
- [x] garden garden clock 서울 서울 tea bread.
- [ ] mañana tea clock план naïve ladder garden Kitchen.
'),
(361, '# Entry 262

Übung rain garden river bread window ladder 서울.

#日本/料理 #Work/Übung
- [ ] coat çay river naïve letter 東京 東京 ladder quince.

```
int answer = 42;
```
'),
(362, '# Entry 263

window çay bread bread Kitchen rain.
- [ ] rain mañana straße garden 東京 bread Ærø çay rain.
- [ ] window Ærø план план tea Ærø.
- [ ] çay quince quince mañana tea tea naïve 東京.
'),
(363, '# Entry 264

quince clock coat rain straße çay.

#ideas #home/kitchen

```
int answer = 42;
```

    indented quince clock 서울 Übung garden Ærø ladder tea.
'),
(364, '# Entry 265

naïve çay tea window çay çay çay ποίημα coat.

#Work/Übung #home
- [x] Kitchen quince tea 東京 window river 서울 naïve garden tea.

See [[Entry 180]] and [[entry 330|another one]].
'),
(365, '# Entry 266

ποίημα план план tea garden.
- [ ] ladder ladder mañana ποίημα Übung mañana Kitchen bread rain.
- [x] bread window план rain çay.

See [[Entry 283]] and [[entry 74|another one]].

```
int answer = 42;
```

![](picture%2038%20%C3%A4.png)'),
(366, '# Entry 267

Ærø Übung 東京 window clock.
- [ ] çay план clock ladder letter.
'),
(367, '# Entry 268

letter ποίημα Übung quince mañana tea bread Ærø tea Übung Übung.

#home/kitchen #home/kitchen/shelf
- [x] rain Übung rain garden clock straße план 서울 çay 東京 clock.
- [x] coat naïve Ærø.
- [ ] Ærø coat mañana ladder.

```
int answer = 42;
```
'),
(368, '# Entry 269

quince Kitchen 서울 ladder Übung.

#café #reise/norge
'),
(369, '# Entry 270

서울 rain letter.

#ideas #日本/料理
- [ ] план çay Kitchen Ærø clock план garden quince.
- [x] clock letter mañana river Ærø.

See [[Entry 348]] and [[entry 376|another one]].

    indented quince river çay.
'),
(371, '# Entry 271

straße quince window Kitchen clock çay.

#work #Work/Übung
- [ ] coat ποίημα 東京 naïve coat.
- [ ] coat rain quince Kitchen 서울 garden ladder river garden ladder.

See [[Entry 288]] and [[entry 148|another one]].
'),
(372, '# Entry 272

naïve ladder bread Übung 서울 bread.

#ideas/later #日本/料理
- [x] tea garden Kitchen window coat 서울 Ærø Ærø çay mañana bread.
- [x] letter letter план.
'),
(373, '# Entry 273

garden план river rain ladder.

See [[Entry 0]] and [[entry 221|another one]].

```
int answer = 42;
```

![](<picture 39 ä.png>)'),
(374, '# Entry 274

river ladder ποίημα letter ladder çay план bread ποίημα river ποίημα.

#work/übung #work/übung
- [ ] coat mañana letter rain clock Ærø garden Übung.
- [x] naïve coat letter.
- [x] tea clock ladder.

See [[Entry 385]] and [[entry 88|another one]].
'),
(375, '# Entry 275

план straße ladder bread 東京.

#home/kitchen/shelf #ideas
- [ ] Übung window mañana план letter window clock.
- [x] window ποίημα window ποίημα.
'),
(376, '# Entry 276

letter quince Kitchen clock quince coat çay 서울 서울.
- [ ] garden coat clock план straße tea river план.
- [x] план план clock ladder Ærø.
- [x] 東京 東京 garden 서울 ladder coat naïve coat.

See [[Entry 88]] and [[entry 339|another one]].

    indented river 東京 çay garden clock 서울.
'),
(377, '# Entry 277

letter straße window clock çay tea bread quince naïve river.

#日本/料理 #home
- [x] 東京 clock clock Übung naïve mañana clock.
- [ ] letter garden çay ποίημα çay straße straße mañana naïve naïve 서울.
- [x] clock window 東京 clock ποίημα letter coat Übung window.
'),
(378, '# Entry 278

river çay bread clock Übung clock ποίημα Kitchen ποίημα план.

#ideas/later #ideas/later
- [ ] garden mañana coat.
- [ ] river tea ποίημα window clock.
'),
(379, '# Entry 279

tea garden window window window план ποίημα coat letter window mañana.
- [x] Ærø Übung naïve clock quince quince ποίημα tea garden çay.
'),
(381, '# Entry 280

naïve bread ladder Übung çay river.

#ideas #home/kitchen
'),
(382, '# Entry 281

東京 bread quince çay clock ladder.

#日本/料理 #two words#
- [x] Ærø 서울 план 東京 план naïve Ærø 서울 straße план naïve.
- [x] 서울 ladder Übung straße 서울 çay quince 東京 tea straße river.

```
int answer = 42;
```
'),
(383, '# Entry 282

план 東京 ποίημα clock план.
- [x] straße ladder quince bread Kitchen ποίημα tea.
- [ ] straße letter clock 서울.
'),
(384, '# Entry 283

Übung letter river bread river.
- [x] mañana 서울 bread çay coat.
- [x] clock quince garden.
- [x] straße ποίημα straße naïve Ærø 서울 rain letter.
'),
(385, '# Entry 284

план window çay straße coat Übung.

#reise/norge #ideas
- [ ] river 서울 tea garden letter.
- [x] 서울 river ποίημα çay çay coat.
- [x] clock naïve çay Ærø Kitchen 東京 letter план straße tea.

See [[Entry 329]] and [[entry 55|another one]].
'),
(386, '# Entry 285

서울 rain mañana garden clock план 東京 ladder bread Kitchen.

See [[Entry 85]] and [[entry 18|another one]].
'),
(387, '# Entry 286

tea straße window tea mañana 東京 Übung bread garden Kitchen naïve.

#日本/料理 #reise/norge
'),
(388, '# Entry 287

quince çay Übung tea ladder 서울 Ærø bread.

#work #ideas/later
- [x] Kitchen Kitchen naïve 東京 ladder.
- [ ] Ærø Ærø window straße ladder.
- [ ] straße straße Kitchen.
'),
(389, '# Entry 288

straße Kitchen window çay bread river tea naïve garden letter.

#ideas #home
- [ ] river Kitchen Übung clock Übung.
- [x] ποίημα letter clock naïve rain.
- [ ] 서울 rain çay Ærø garden Übung Ærø window letter.

    indented straße Kitchen 서울 quince river.
'),
(391, '# Entry 289

window garden ποίημα river letter mañana straße план.
- [x] Übung straße 서울 ποίημα çay river clock.
- [ ] naïve план 東京.
- [ ] 서울 çay naïve.

    indented quince çay ladder quince tea clock garden план.
'),
(392, '# Entry 290

naïve garden clock çay план straße mañana river.
- [ ] garden river 東京 bread garden river 서울.
- [ ] coat clock ποίημα window ποίημα Übung ladder Ærø.
- [ ] quince план garden mañana çay clock naïve quince window Kitchen ποίημα.

    indented rain Ærø straße coat ladder.
'),
(393, '# Entry 291

東京 план window tea 서울 çay 東京 mañana naïve Kitchen letter.
- [x] river 東京 ladder Ærø bread quince river clock letter.
- [x] rain rain letter naïve.
- [ ] tea ποίημα Kitchen clock Kitchen bread 서울 東京 mañana Ærø.

```
int answer = 42;
```
'),
(394, '# Entry 292

서울 coat tea 서울 river straße ladder.
- [ ] straße tea 東京 план ladder 서울 Ærø.
- [x] quince Kitchen Kitchen letter план.
'),
(395, '# Entry 293

ποίημα 東京 rain Kitchen letter naïve bread.

#Work/Übung #home
- [ ] Kitchen Kitchen bread tea coat план çay Übung Übung.
- [x] Kitchen mañana garden çay letter window.
'),
(396, '# Entry 294

ποίημα tea river.

```
int answer = 42;
```
'),
(397, '# Entry 295

tea rain clock coat bread.

See [[Entry 375]] and [[entry 65|another one]].
'),
(398, '# Entry 296

window Ærø river quince Übung ποίημα Kitchen Übung ladder river 서울.

#日本/料理 #café
- [ ] letter 서울 çay Übung clock Kitchen 서울 tea.
- [x] план river coat Ærø.

See [[Entry 94]] and [[entry 271|another one]].
'),
(399, '# Entry 297

Kitchen coat ladder river Ærø ποίημα Ærø river план.
- [ ] quince Übung çay rain naïve rain window план ποίημα 東京.
'),
(401, '# Entry 298

straße straße river план window window 東京 coat.

#work #home/kitchen
- [x] 서울 東京 letter Übung rain garden.
'),
(402, '# Entry 299

garden tea window 東京 東京 ποίημα.

#reise/norge #home/kitchen/shelf
- [x] straße tea window garden.
- [ ] ladder garden mañana.
- [x] letter tea ladder.
'),
(403, '# Entry 300

ποίημα 서울 план quince план 東京 план.
- [ ] 東京 window quince Ærø straße Ærø tea Übung quince quince.

See [[Entry 62]] and [[entry 357|another one]].

```
int answer = 42;
```
'),
(404, '# Entry 301

mañana план tea coat straße ποίημα план tea 東京 ποίημα план.

#ideas #home
- [ ] mañana naïve river ladder Kitchen letter river clock rain clock letter.
- [x] Kitchen bread quince 東京 ladder letter.
- [x] rain ποίημα 東京 quince çay.
'),
(405, '# Entry 302

clock naïve tea.

#home/kitchen/shelf #日本/料理
- [ ] çay 서울 window mañana.
- [x] Ærø straße план rain çay river clock window 서울 window.
- [ ] rain Ærø garden quince план.
'),
(406, '# Entry 303

letter 서울 quince Kitchen tea straße rain 東京 tea.

#ideas #日本/料理
- [ ] straße mañana window 서울 quince river clock naïve.
- [ ] river garden bread quince 東京 rain.
'),
(407, '# Entry 304

bread ποίημα clock план straße rain bread garden ladder garden ποίημα.

#ideas/later #ideas/later
- [ ] çay 서울 çay garden clock.
- [x] Übung Kitchen Übung ladder Übung clock.
- [x] 서울 bread план ποίημα.
'),
(408, '# Entry 305

window bread river 서울.

#日本/料理 #Work/Übung
- [x] letter rain rain garden coat çay 東京 straße план.

```
int answer = 42;
```
'),
(409, '# Entry 306

bread clock Kitchen rain naïve tea tea bread план.

#Work/Übung #日本/料理

```
int answer = 42;
```
'),
(411, '# Entry 307

bread clock letter ποίημα план tea.
- [x] river 東京 naïve ποίημα ποίημα rain letter bread letter ladder Übung.
- [x] clock план letter план çay.
- [x] coat tea ποίημα rain 東京 clock straße Ærø window çay straße.
'),
(412, '# Entry 308

Kitchen bread river 東京.

#ideas #work
- [ ] Kitchen bread rain river mañana Kitchen river quince Ærø.
- [ ] river bread quince bread river çay çay bread tea Kitchen.
- [x] coat ποίημα garden window ποίημα 東京 çay letter план.

See [[Entry 222]] and [[entry 193|another one]].
'),
(413, '# Entry 309

river Übung clock clock.

#日本/料理 #home/kitchen/shelf

See [[Entry 358]] and [[entry 187|another one]].

    indented mañana coat ladder rain river Ærø clock straße Ærø window Übung.
'),
(414, '# Entry 310

straße Übung straße 서울 ladder garden mañana bread straße.

#ideas #Work/Übung
- [x] 東京 Übung çay naïve Übung rain coat river Übung naïve ladder.
- [x] coat ποίημα ποίημα straße 東京.
- [x] coat Kitchen quince bread.
'),
(415, '# Entry 311

tea Ærø 東京 rain Übung quince Kitchen Ærø quince letter garden.

#ideas #Work/Übung
- [ ] 東京 garden tea straße план Ærø letter çay план Kitchen ποίημα.
'),
(416, '# Entry 312

garden quince naïve ladder bread coat mañana 서울 Kitchen garden.
- [x] Übung bread Kitchen quince mañana план 서울.
- [x] план 東京 Kitchen.
- [ ] çay 東京 東京 ladder coat план clock letter Kitchen coat clock.
'),
(417, '# Entry 313

garden ladder coat 東京 Übung Übung план Kitchen rain tea Ærø.
- [x] letter ladder mañana.

See [[Entry 218]] and [[entry 178|another one]].
'),
(418, '# Entry 314

tea rain Ærø window Kitchen mañana coat çay план bread naïve.

#ideas #café
- [x] ladder garden план garden quince ποίημα Übung coat 東京 bread Ærø.

```
int answer = 42;
```
'),
(419, '# Entry 315

window Übung Ærø bread coat Übung garden.
- [x] план ποίημα coat coat.
- [ ] straße Ærø 東京 tea straße ladder Kitchen.
- [x] план naïve bread mañana план план clock.
'),
(421, '# Entry 316

çay ποίημα çay 서울 letter.
'),
(422, '# Entry 317

план garden coat rain ladder clock clock.
- [ ] bread window clock river clock.

```
int answer = 42;
```
'),
(423, '# Entry 318

quince letter Übung rain straße.

#two words# #reise/norge
- [ ] river naïve 서울 ladder tea coat çay rain rain naïve bread.

```
int answer = 42;
```
'),
(424, '# Entry 319

garden window quince garden bread window.
'),
(425, '# Groceries

milk and [[Groceries]] again'),
(426, '# AC/DC

is a title with a slash'),
(427, '# x|y [z]

is one to escape'),
(428, '# Éclair

of other letters'),
(429, '![](only-an-image.png)'),
(431, ''),
(432, '# By identifier

[[AD4A3597-92E0-407E-B112-76DE17DB248F]] and [[64E3F08E-C14D-4EB5-BCC3-54DF54D5683F|the empty one]]'),
(433, '# Links

🎉 [[Groceries]] [[ groceries |again]] ![[GROCERIES]] [[AC/DC]] [[x\|y \[z\]]]

[[eclair]] [[ÉCLAIR]] [[nobody has this title]] [[ ]] [[|alias]] \[[Groceries]] `[[Groceries]]`
[[1]](https://example.com) [see [[Groceries]]](x) [[́]]

    [[Groceries]] in code
'),
(434, '# To [[Groceries]]

a link in a title'),
(435, '# Chain one

[[Chain two]]'),
(436, '# Chain two

[[Chain three]] [[Chain one]]'),
(437, '# Twin

the first, in the trash'),
(438, '# twin

the third'),
(439, '# TWIN

the second: links lead here'),
(441, '# Twin

made at no known time, in the trash'),
(442, '# Thrown away

and nothing took its place'),
(443, '# Same moment

of two the one with the lower key'),
(444, '# Same moment

of two the one with the higher key'),
(445, '# To twins

[[Twin]] [[thrown away]] [[Same moment]] [[Dateless]]'),
(446, '# Dateless

what has no date was made first'),
(447, '# Dateless

made later than none');
INSERT INTO "OVNoteTag" ("pk", "rowVersion", "uniqueIdentifier", "name", "modificationDate", "version", "isRoot", "pinned", "pinnedDate", "sorting", "sortingDate", "sortingDirection", "sortingDirectionDate", "name_folded") VALUES
(1, 2, '01803CD1-08D8-4D73-AFEA-79C81E4783C6', 'it''s', 1700000000002000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'it''s'),
(2, 3, 'F8FDCD06-34D5-4602-8CDB-95CB074DC84B', 'behind', 1700000000011000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'behind'),
(3, 4, '4C2B141E-2467-472D-8439-F0FCD2600D0A', 'behind/nul', 1700000000012000, 1, 0, 0, NULL, 3, 1700000001334000, 0, NULL, 'behind/nul'),
(4, 5, '61B5540A-60B7-4D38-9995-E760F9D319F1', 'windows', 1700000000018000, 1, 1, 1, 1700000001335000, 0, NULL, 0, NULL, 'windows'),
(5, 1, '6D632008-54CD-424F-A940-6CD31871EA14', '🎉', 1700000000027000, 1, 1, 0, NULL, 0, NULL, 0, 1700000001336000, '🎉'),
(6, 2, '2C0F9EDB-8EF3-43FB-9AEB-5687E335AF6E', 'party', 1700000000028000, 1, 1, 0, NULL, 1, 1700000001337000, 0, NULL, 'party'),
(7, 3, 'BCF32264-E420-43C3-98D3-E55EA6AFE785', 'party/🥳', 1700000000029000, 1, 0, 0, NULL, 0, NULL, 0, NULL, NULL),
(8, 4, 'B2BE2C69-B600-46F7-9013-0970DC336F8A', 'עברית', 1700000000033000, 1, 1, 1, 1700000001338000, 0, NULL, 0, NULL, 'עברית'),
(9, 5, 'FC0ECD8F-9935-44F9-BAD5-72EE9D2C2596', 'عربي', 1700000000036000, 1, 1, 0, NULL, 4, 1700000001339000, 0, NULL, 'عربي'),
(11, 2, 'DBB64C0C-783B-4ACC-87D7-A77D2BCC7226', 'عربي/يومي', 1700000000037000, 1, 0, 0, NULL, 0, NULL, 1, 1700000001340000, 'عربي/يومي'),
(12, 3, '527F5EE0-9A54-4E67-8096-623483468C27', 'café', 1700000001201000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'café'),
(13, 4, '909E736A-D4B9-43A9-9102-D55DA46D2E50', '𝔱𝔞𝔤', 1700000000045000, 1, 1, 1, 1700000001341000, 2, 1700000001342000, 0, NULL, '𝔱𝔞𝔤'),
(14, 5, '2E68D9E7-70FF-4502-A21C-CECBBAAA1AE8', 'İzmir', 1700000000048000, 1, 1, 0, NULL, 0, NULL, 0, NULL, NULL),
(15, 1, '953A7F90-DC25-49ED-A8EA-0B9606608E64', 'ıspanak', 1700000000049000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'ıspanak'),
(16, 2, '8C91FAA1-0A1C-49CB-8551-85792A56B439', '한국', 1700000000056000, 1, 1, 0, NULL, 0, 1700000001343000, 0, 1700000001344000, '한국'),
(17, 3, 'C7B09CD3-1BFD-4B93-8F46-58FAD60BE5C1', 'home', 1700000001317000, 1, 1, 1, 1700000001345000, 0, NULL, 0, NULL, 'home'),
(18, 4, '116B58E6-80F0-4152-B7C7-F40EA41AA081', 'work', 1700000001325000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'work'),
(19, 5, 'B058F516-225E-45C4-83B0-7692618B8B79', 'ideas', 1700000001299000, 1, 1, 0, NULL, 3, 1700000001346000, 0, NULL, 'ideas'),
(21, 2, '015926FA-8C70-42CD-8DD8-ECDAD327627F', 'a', 1700000000116000, 1, 1, 0, NULL, 0, NULL, 0, NULL, NULL),
(22, 3, '0F25E6E0-A462-4FF3-AE01-209EE5077032', 'a/b', 1700000000117000, 1, 0, 1, 1700000001347000, 0, NULL, 1, 1700000001348000, 'a/b'),
(23, 4, 'B2FAA02B-A9C5-4161-B6B3-1E52B151D2DF', 'a/b/c', 1700000000118000, 1, 0, 0, NULL, 1, 1700000001349000, 0, NULL, 'a/b/c'),
(24, 5, 'C7FD9512-AEAC-4B89-844D-FF3F975FF3BB', 'closed tag', 1700000000119000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'closed tag'),
(25, 1, 'E57D40D2-9F81-44CE-A944-3619D39BFA38', 'in-parentheses', 1700000000120000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'in-parentheses'),
(26, 2, '5C08B76D-4CAE-410B-88BD-4A9758D9D2D2', 'home/kitchen', 1700000001318000, 1, 0, 1, 1700000001350000, 4, 1700000001351000, 0, NULL, 'home/kitchen'),
(27, 3, 'A1B68EB9-6FBD-48F1-88C1-1602D6014833', 'first', 1700000000124000, 1, 1, 0, NULL, 0, NULL, 0, 1700000001352000, 'first'),
(28, 4, 'C770D74D-3E30-402A-A703-B92B35ABCA62', 'home/kitchen/shelf', 1700000001319000, 1, 0, 0, NULL, 0, NULL, 0, NULL, NULL),
(29, 5, '3B7CB8D1-8826-4446-8C49-05CF54BB1FDA', '1st', 1700000000128000, 1, 1, 0, NULL, 2, 1700000001353000, 0, NULL, '1st'),
(31, 2, '07EB42A0-AECB-422C-8025-AFC9DA540FC1', '1st/2nd', 1700000000129000, 1, 0, 1, 1700000001354000, 0, NULL, 0, NULL, '1st/2nd'),
(32, 3, '34C5C259-1C13-4B11-85ED-CF8AFE9D91D1', '1st/2nd/3rd', 1700000000130000, 1, 0, 0, NULL, 0, NULL, 0, NULL, '1st/2nd/3rd'),
(33, 4, 'AE0711F2-563D-4007-9DB7-1C74E32BE237', '1st/2nd/3rd/4th', 1700000000131000, 1, 0, 0, NULL, 0, 1700000001355000, 1, 1700000001356000, '1st/2nd/3rd/4th'),
(34, 5, 'E805325C-BFB4-49A2-A2D3-4DA5D9B6042B', '1st/2nd/3rd/4th/5th', 1700000000132000, 1, 0, 0, NULL, 0, NULL, 0, NULL, '1st/2nd/3rd/4th/5th'),
(35, 1, '8B1D4CD9-A0B2-48B3-AA97-737D592BFE72', '1st/2nd/3rd/4th/5th/6th', 1700000000133000, 1, 0, 1, 1700000001357000, 0, NULL, 0, NULL, NULL),
(36, 2, '7368585F-1C40-42D6-BE3A-587F33960A6B', '1st/2nd/3rd/4th/5th/6th/7th', 1700000000134000, 1, 0, 0, NULL, 3, 1700000001358000, 0, NULL, '1st/2nd/3rd/4th/5th/6th/7th'),
(37, 3, '1FF40967-869E-4392-8C49-4A5BC1D535AA', '1st/2nd/3rd/4th/5th/6th/7th/8th', 1700000000135000, 1, 0, 0, NULL, 0, NULL, 0, NULL, '1st/2nd/3rd/4th/5th/6th/7th/8th'),
(38, 4, '17EE22DE-FB83-47F0-AAC4-F00F18DE3E6A', 'two words', 1700000001245000, 1, 1, 0, NULL, 0, NULL, 0, 1700000001359000, 'two words'),
(39, 5, 'B918B731-3418-4FC3-89AE-9442DE0C9980', '日本', 1700000001326000, 1, 1, 1, 1700000001360000, 1, 1700000001361000, 0, NULL, '日本'),
(41, 2, '61E2CD8B-5A18-4336-ABFC-69AFCD7728BB', '日本/料理', 1700000001327000, 1, 0, 0, NULL, 0, NULL, 0, NULL, '日本/料理'),
(42, 3, '09EA4351-4F83-4FC6-BEAA-8594B9BBB6CD', 'reise', 1700000001320000, 1, 1, 0, NULL, 0, NULL, 0, NULL, NULL),
(43, 4, '183AEE4F-A4D0-4A33-BFC9-53D8D27837F4', 'reise/norge', 1700000001321000, 1, 0, 0, NULL, 4, 1700000001362000, 0, NULL, 'reise/norge'),
(44, 5, 'BCCC168E-98AE-4CEB-A820-D0C63698CDFF', 'work/übung', 1700000001328000, 1, 0, 1, 1700000001363000, 0, NULL, 1, 1700000001364000, 'work/übung'),
(45, 1, '78B960AE-D995-4CFF-A364-543A40284E4E', 'ideas/later', 1700000001302000, 1, 0, 0, NULL, 0, NULL, 0, NULL, 'ideas/later');
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
INSERT INTO "OVNoteFile" ("pk", "rowVersion", "entity", "uniqueIdentifier", "filename", "normalizedFileExtension", "fileSize", "index", "creationDate", "modificationDate", "insertionDate", "lastEditingDevice", "version", "downloaded", "uploaded", "uploadedDate", "unused", "unusedDate", "permanentlyDeleted", "skipSync", "note", "serverData", "width", "height") VALUES
(1, 2, 'OVNoteImage', '68EA363C-6896-4DD3-9DD4-3C27B14EE742', 'picture 0 ä.png', 'png', 1000.25, 0, NULL, NULL, 1700000001033000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 69, 1, 0, 0),
(2, 3, 'OVNoteGenericFile', '19C1BB5D-E778-42CF-BCB1-47B6C52A0F72', 'paper''s "0".pdf', 'pdf', 0.5, 1, NULL, NULL, 1700000001034000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 1, 69, NULL, NULL, NULL),
(3, 4, 'OVNoteImage', '24A62A27-B332-450A-8CB8-C7CADDE2765A', 'picture 1 ä.png', 'png', 2021.75, 0, NULL, NULL, 1700000001035000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 77, NULL, 16, 9),
(4, 5, 'OVNoteGenericFile', '7A005319-7772-456A-84A8-81868E9421C9', 'paper''s "1".pdf', 'pdf', 1, 1, NULL, NULL, 1700000001036000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 77, 2, NULL, NULL),
(5, 1, 'OVNoteImage', 'C2196AAF-E181-45E5-BD3D-137B0993AB8C', 'picture 2 ä.png', 'png', 9168.25, 0, NULL, NULL, 1700000001037000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 85, NULL, 32, 18),
(6, 2, 'OVNoteGenericFile', 'CE4E25CA-F707-46BF-A159-D2D7E85B7D80', 'paper''s "2".pdf', 'pdf', 2.5, 0, NULL, NULL, 1700000001038000, NULL, 1, 0, 0, NULL, 1, 1700000001039000, 0, 0, 85, NULL, NULL, NULL),
(7, 3, 'OVNoteImage', '0F479E65-F9D1-47B4-BD2F-B5B0BE7B8BF9', 'picture 3 ä.png', 'png', 28567.75, 0, NULL, NULL, 1700000001040000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 93, 3, 48, 27),
(8, 4, 'OVNoteImage', '0A35FDB2-7DC6-443F-B111-ACE51CDF5831', 'picture 4 ä.png', 'png', 66344, 0, NULL, NULL, 1700000001041000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 101, NULL, 64, 36),
(9, 5, 'OVNoteGenericFile', '77AAEEA5-1657-4513-8427-971A7E0A93AA', 'paper''s "4".pdf', 'pdf', 4.25, 1, NULL, NULL, 1700000001042000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 101, NULL, NULL, NULL),
(11, 2, 'OVNoteImage', '76BFD9A1-55BF-4858-99FD-54B5F922BBAC', 'picture 5 ä.png', 'png', 128625.75, 0, NULL, NULL, 1700000001043000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 108, 4, 80, 45),
(12, 3, 'OVNoteGenericFile', 'F815DD7D-D93A-4B87-86C6-31738C835102', 'paper''s "5".pdf', 'pdf', 5, 1, NULL, NULL, 1700000001044000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 108, NULL, NULL, NULL),
(13, 4, 'OVNoteImage', '29AA12E9-A33F-4AF7-BBA0-DDB91BF04CD8', 'picture 6 ä.png', 'png', 221536.25, 0, NULL, NULL, 1700000001045000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 116, NULL, 96, 54),
(14, 5, 'OVNoteGenericFile', '878557AA-40CD-4976-AD83-C5CC60629AB5', 'paper''s "6".pdf', 'pdf', 6.5, 0, NULL, NULL, 1700000001046000, NULL, 1, 0, 0, NULL, 1, 1700000001047000, 0, 0, 116, 5, NULL, NULL),
(15, 1, 'OVNoteImage', '78CD879E-C0C6-4716-B4AF-405BE0E1CAA3', 'picture 7 ä.png', 'png', 351203.75, 0, NULL, NULL, 1700000001048000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 124, NULL, 112, 63),
(16, 2, 'OVNoteImage', '89A589F1-AFFE-4DFF-AE98-3E09DAC536B0', 'picture 8 ä.png', 'png', 523752, 0, NULL, NULL, 1700000001049000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 132, NULL, 128, 72),
(17, 3, 'OVNoteGenericFile', '36D42501-3060-4A9A-97E6-C3442C49DBAB', 'paper''s "8".pdf', 'pdf', 8.25, 1, NULL, NULL, 1700000001050000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 132, 6, NULL, NULL),
(18, 4, 'OVNoteImage', '52B9A903-7FC8-41B2-8069-9C13229AC8E5', 'picture 9 ä.png', 'png', 745309.5, 0, NULL, NULL, 1700000001051000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 139, NULL, 144, 81),
(19, 5, 'OVNoteGenericFile', 'D61997BD-83B5-45D3-9E68-E89D101610BB', 'paper''s "9".pdf', 'pdf', 9.75, 1, NULL, NULL, 1700000001052000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 139, NULL, NULL, NULL),
(21, 2, 'OVNoteImage', '202A1D10-68AB-4FE7-9165-C404944C9E5E', 'picture 10 ä.png', 'png', 1022000.25, 0, NULL, NULL, 1700000001053000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 147, 7, 160, 90),
(22, 3, 'OVNoteGenericFile', '42C7E502-E016-4936-9C1D-F492F6E1A33C', 'paper''s "10".pdf', 'pdf', 10.5, 0, NULL, NULL, 1700000001054000, NULL, 1, 0, 0, NULL, 1, 1700000001055000, 0, 0, 147, NULL, NULL, NULL),
(23, 4, 'OVNoteImage', '4D9944B3-2999-4436-BA6D-5BEFEEF2E25F', 'picture 11 ä.png', 'png', 1359951.75, 0, NULL, NULL, 1700000001056000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 155, NULL, 176, 99),
(24, 5, 'OVNoteImage', '4F61AF0A-3EBC-42BF-8685-57B0C8CEB729', 'picture 12 ä.png', 'png', 1765288, 0, NULL, NULL, 1700000001057000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 163, 8, 192, 108),
(25, 1, 'OVNoteGenericFile', 'E96961D8-7A7F-4DE7-A500-5E80F6CB8F32', 'paper''s "12".pdf', 'pdf', 12.25, 1, NULL, NULL, 1700000001058000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 163, NULL, NULL, NULL),
(26, 2, 'OVNoteImage', '85C08353-4C31-4EBF-9349-E3DAFBB9AFC3', 'picture 13 ä.png', 'png', 2244137.5, 0, NULL, NULL, 1700000001059000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 171, NULL, 208, 117),
(27, 3, 'OVNoteGenericFile', 'C10A7480-5E87-480B-B26E-8F1F3DB78C6B', 'paper''s "13".pdf', 'pdf', 13.75, 1, NULL, NULL, 1700000001060000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 171, 9, NULL, NULL),
(28, 4, 'OVNoteImage', 'D13DFDF8-78AF-47E7-BDA3-24DF61C017F5', 'picture 14 ä.png', 'png', 2802624, 0, NULL, NULL, 1700000001061000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 178, NULL, 224, 126),
(29, 5, 'OVNoteGenericFile', 'DC0041E0-D9FE-4A4D-9857-6B3004B803FF', 'paper''s "14".pdf', 'pdf', 14.25, 0, NULL, NULL, 1700000001062000, NULL, 1, 0, 0, NULL, 1, 1700000001063000, 0, 1, 178, NULL, NULL, NULL),
(31, 2, 'OVNoteImage', '6649C870-470D-4B3E-AA50-F29F2EC6681D', 'picture 15 ä.png', 'png', 3446875.75, 0, NULL, NULL, 1700000001064000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 186, 11, 240, 135),
(32, 3, 'OVNoteImage', '91AF7DA5-0CF4-4DBC-A0B9-20D59689652B', 'picture 16 ä.png', 'png', 4183016, 0, NULL, NULL, 1700000001065000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 194, NULL, 256, 144),
(33, 4, 'OVNoteGenericFile', 'E345EDF6-6126-44A5-A5C9-05A14A11088F', 'paper''s "16".pdf', 'pdf', 16.25, 1, NULL, NULL, 1700000001066000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 194, NULL, NULL, NULL),
(34, 5, 'OVNoteImage', '9D349023-ECC1-4494-A226-5A8C71EB7784', 'picture 17 ä.png', 'png', 5017173.5, 0, NULL, NULL, 1700000001067000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 202, 12, 272, 153),
(35, 1, 'OVNoteGenericFile', '773E4335-0919-4522-9714-3162B4E17727', 'paper''s "17".pdf', 'pdf', 17.75, 1, NULL, NULL, 1700000001068000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 202, NULL, NULL, NULL),
(36, 2, 'OVNoteImage', '8261B162-7914-46C5-9FF7-FF83FF5F9F8B', 'picture 18 ä.png', 'png', 5955472, 0, NULL, NULL, 1700000001069000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 209, NULL, 288, 162),
(37, 3, 'OVNoteGenericFile', '956A2901-BA55-4216-AA88-146EC6B6338E', 'paper''s "18".pdf', 'pdf', 18.25, 0, NULL, NULL, 1700000001070000, NULL, 1, 0, 0, NULL, 1, 1700000001072000, 0, 0, 209, 13, NULL, NULL),
(38, 4, 'OVNoteImage', '2B89F081-67D7-4591-8EE5-B9F45D9329AA', 'picture 19 ä.png', 'png', 7004039.5, 0, NULL, NULL, 1700000001073000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 217, NULL, 304, 171),
(39, 5, 'OVNoteImage', 'CE5FA9D0-1627-4707-9C9F-83DE4C740EE7', 'picture 20 ä.png', 'png', 8169000.75, 0, NULL, NULL, 1700000001074000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 225, NULL, 320, 180),
(41, 2, 'OVNoteGenericFile', '4337C4DD-3322-49FA-9B11-1AC0B235D395', 'paper''s "20".pdf', 'pdf', 20.25, 1, NULL, NULL, 1700000001075000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 225, 14, NULL, NULL),
(42, 3, 'OVNoteImage', '08890C90-C919-4FF8-8B2F-93CA19AA2B61', 'picture 21 ä.png', 'png', 9456481.5, 0, NULL, NULL, 1700000001076000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 233, NULL, 336, 189),
(43, 4, 'OVNoteGenericFile', 'D0ECB6D2-7BA6-4113-8684-E9EBDDB983DA', 'paper''s "21".pdf', 'pdf', 21.75, 1, NULL, NULL, 1700000001077000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 1, 233, NULL, NULL, NULL),
(44, 5, 'OVNoteImage', 'DA89855C-7AB8-42E3-865B-9D34ACF2D684', 'picture 22 ä.png', 'png', 10872608, 0, NULL, NULL, 1700000001078000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 241, 15, 352, 198),
(45, 1, 'OVNoteGenericFile', 'A48A56EA-5375-4C96-B936-3154637183F9', 'paper''s "22".pdf', 'pdf', 22.25, 0, NULL, NULL, 1700000001079000, NULL, 1, 0, 0, NULL, 1, 1700000001080000, 0, 0, 241, NULL, NULL, NULL),
(46, 2, 'OVNoteImage', '357F1A20-800F-4EB5-9C18-528F3A7119C2', 'picture 23 ä.png', 'png', 12423507.5, 0, NULL, NULL, 1700000001081000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 248, NULL, 368, 207),
(47, 3, 'OVNoteImage', '003CFD76-D543-41F5-B1CF-4992A8DB4D67', 'picture 24 ä.png', 'png', 14115304.75, 0, NULL, NULL, 1700000001082000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 256, 16, 384, 216),
(48, 4, 'OVNoteGenericFile', '5E3D50ED-70F2-4D53-8301-ACA5BE7C3E95', 'paper''s "24".pdf', 'pdf', 24, 1, NULL, NULL, 1700000001083000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 256, NULL, NULL, NULL),
(49, 5, 'OVNoteImage', '6F1860BB-07F4-49E0-8E1B-9FE07A642DA5', 'picture 25 ä.png', 'png', 15954125.25, 0, NULL, NULL, 1700000001084000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 264, NULL, 400, 225),
(51, 2, 'OVNoteGenericFile', '3AAA9C5F-14FC-4F16-A701-EA008C9B85B6', 'paper''s "25".pdf', 'pdf', 25.75, 1, NULL, NULL, 1700000001085000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 264, 17, NULL, NULL),
(52, 3, 'OVNoteImage', 'C1998785-7E3A-4293-833D-1D61593D315F', 'picture 26 ä.png', 'png', 17946096, 0, NULL, NULL, 1700000001086000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 272, NULL, 416, 234),
(53, 4, 'OVNoteGenericFile', 'B3C80BC9-AAE2-484E-BE68-6152BB42E921', 'paper''s "26".pdf', 'pdf', 26.25, 0, NULL, NULL, 1700000001087000, NULL, 1, 0, 0, NULL, 1, 1700000001088000, 0, 0, 272, NULL, NULL, NULL),
(54, 5, 'OVNoteImage', '0665ECA6-0A71-40A0-8D55-F06B268F5A01', 'picture 27 ä.png', 'png', 20097343.5, 0, NULL, NULL, 1700000001089000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 279, 18, 432, 243),
(55, 1, 'OVNoteImage', 'EB772F6C-DF3E-4423-81D4-4B2538BD9A0D', 'picture 28 ä.png', 'png', 22413992.75, 0, NULL, NULL, 1700000001090000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 287, NULL, 448, 252),
(56, 2, 'OVNoteGenericFile', '7DCE1A9E-2DE7-4647-BBDF-50EE8E57267F', 'paper''s "28".pdf', 'pdf', 28, 1, NULL, NULL, 1700000001091000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 1, 287, NULL, NULL, NULL),
(57, 3, 'OVNoteImage', 'F06C38F6-590F-4B1F-B6BA-A8A2459E820D', 'picture 29 ä.png', 'png', 24902169.25, 0, NULL, NULL, 1700000001092000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 295, 19, 464, 261),
(58, 4, 'OVNoteGenericFile', '58E99020-905A-4BBF-9D5D-49221CB7E647', 'paper''s "29".pdf', 'pdf', 29.5, 1, NULL, NULL, 1700000001093000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 295, NULL, NULL, NULL),
(59, 5, 'OVNoteImage', '2D317677-A9F0-486E-ACDF-047839F78B36', 'picture 30 ä.png', 'png', 27568000.75, 0, NULL, NULL, 1700000001094000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 303, NULL, 480, 270),
(61, 2, 'OVNoteGenericFile', '69972DFD-3C7A-46A5-87AB-6507932BE4F8', 'paper''s "30".pdf', 'pdf', 30.25, 0, NULL, NULL, 1700000001095000, NULL, 1, 0, 0, NULL, 1, 1700000001096000, 0, 0, 303, 21, NULL, NULL),
(62, 3, 'OVNoteImage', '729DBD42-4094-4923-BEEE-F365CA8160CD', 'picture 31 ä.png', 'png', 30417611.5, 0, NULL, NULL, 1700000001097000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 311, NULL, 496, 279),
(63, 4, 'OVNoteImage', '99305A57-DEFB-48E3-902B-309CBA8D98A3', 'picture 32 ä.png', 'png', 33457128.75, 0, NULL, NULL, 1700000001098000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 318, NULL, 512, 288),
(64, 5, 'OVNoteGenericFile', '1D2A87C1-CEAA-43E5-9798-1A8EC92E8EA3', 'paper''s "32".pdf', 'pdf', 32, 1, NULL, NULL, 1700000001099000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 318, 22, NULL, NULL),
(65, 1, 'OVNoteImage', '1542E6CE-7B98-44EE-97FD-89DEEC6FE4AE', 'picture 33 ä.png', 'png', 36692677.25, 0, NULL, NULL, 1700000001100000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 326, NULL, 528, 297),
(66, 2, 'OVNoteGenericFile', 'FD60D900-97BF-4707-9C40-E566B07C8ECC', 'paper''s "33".pdf', 'pdf', 33.5, 1, NULL, NULL, 1700000001101000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 326, NULL, NULL, NULL),
(67, 3, 'OVNoteImage', 'D4396342-9CF4-4285-BFC6-04781D66C4A5', 'picture 34 ä.png', 'png', 40130384.75, 0, NULL, NULL, 1700000001103000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 334, 23, 544, 306),
(68, 4, 'OVNoteGenericFile', 'E8E2ACB5-7131-4D1A-8946-DF2B848B300A', 'paper''s "34".pdf', 'pdf', 34, 0, NULL, NULL, 1700000001104000, NULL, 1, 0, 0, NULL, 1, 1700000001105000, 0, 0, 334, NULL, NULL, NULL),
(69, 5, 'OVNoteImage', 'B2DDDF75-8134-4FF1-BAE5-C37A60B83947', 'picture 35 ä.png', 'png', 43776375.25, 0, NULL, NULL, 1700000001106000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 342, NULL, 560, 315),
(71, 2, 'OVNoteImage', '5C468066-A782-4248-A81E-7A33B9BEAB8D', 'picture 36 ä.png', 'png', 47636776.75, 0, NULL, NULL, 1700000001107000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 349, 24, 576, 324),
(72, 3, 'OVNoteGenericFile', '2223103E-DF71-4560-81C1-C25445CEC0AA', 'paper''s "36".pdf', 'pdf', 36, 1, NULL, NULL, 1700000001108000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 349, NULL, NULL, NULL),
(73, 4, 'OVNoteImage', '1C007D6D-5EB7-481A-837E-6C12738BD5FA', 'picture 37 ä.png', 'png', 51717713.25, 0, NULL, NULL, 1700000001109000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 357, NULL, 592, 333),
(74, 5, 'OVNoteGenericFile', '5F718A41-5A0C-4E07-BC3B-FA7C33CC16EE', 'paper''s "37".pdf', 'pdf', 37.5, 1, NULL, NULL, 1700000001110000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 357, 25, NULL, NULL),
(75, 1, 'OVNoteImage', '1F7CA2FC-C1A2-4A8F-A8FC-DBF271889170', 'picture 38 ä.png', 'png', 56025312.75, 0, NULL, NULL, 1700000001112000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 365, NULL, 608, 342),
(76, 2, 'OVNoteGenericFile', '7E4B3CE9-E7C7-4E98-9979-75EDA1C0EB4F', 'paper''s "38".pdf', 'pdf', 38, 0, NULL, NULL, 1700000001113000, NULL, 1, 0, 0, NULL, 1, 1700000001114000, 0, 0, 365, NULL, NULL, NULL),
(77, 3, 'OVNoteImage', 'AF592143-345D-454E-8361-39D035FF1BE2', 'picture 39 ä.png', 'png', 60565699.25, 0, NULL, NULL, 1700000001115000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 373, 26, 624, 351);
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
INSERT INTO "store_keys" ("entity", "nextKey") VALUES
('OVNote', 5060),
('OVNoteTag', 5090),
('OVNoteFile', 5100),
('OVChange', 5080),
('OVChangeItem', 5120),
('OVInternalChanges', 5170),
('OVNoteServerData', 5160),
('OVNoteFileServerData', 5200);
CREATE UNIQUE INDEX "OVNote_tags_member" ON "OVNote_tags" ("member", "owner");
CREATE INDEX "OVNote_uniqueIdentifier" ON "OVNote" ("uniqueIdentifier");
CREATE INDEX "OVNote_title_folded" ON "OVNote" ("title_folded");
CREATE INDEX "OVNote_title_stale" ON "OVNote" ("title_folded") WHERE "title_folded" IS NULL AND "title" IS NOT NULL;
CREATE TRIGGER "OVNote_title_stale" AFTER UPDATE OF "title" ON "OVNote" WHEN NEW."title" IS NOT OLD."title" AND NEW."title_folded" IS OLD."title_folded" BEGIN UPDATE "OVNote" SET "title_folded" = NULL WHERE "pk" = NEW."pk"; END;
CREATE INDEX "OVNote_serverData" ON "OVNote" ("serverData");
CREATE INDEX "OVNote_pinned_modificationDate_trashed_archived" ON "OVNote" ("pinned" DESC, "modificationDate" DESC, "trashed", "archived");
CREATE INDEX "OVNote_trashed_archived" ON "OVNote" ("trashed", "archived");
CREATE INDEX "OVNoteTag_uniqueIdentifier" ON "OVNoteTag" ("uniqueIdentifier");
CREATE INDEX "OVNoteTag_name_folded" ON "OVNoteTag" ("name_folded");
CREATE INDEX "OVNoteTag_name_stale" ON "OVNoteTag" ("name_folded") WHERE "name_folded" IS NULL AND "name" IS NOT NULL;
CREATE TRIGGER "OVNoteTag_name_stale" AFTER UPDATE OF "name" ON "OVNoteTag" WHEN NEW."name" IS NOT OLD."name" AND NEW."name_folded" IS OLD."name_folded" BEGIN UPDATE "OVNoteTag" SET "name_folded" = NULL WHERE "pk" = NEW."pk"; END;
CREATE INDEX "OVNoteFile_uniqueIdentifier" ON "OVNoteFile" ("uniqueIdentifier");
CREATE INDEX "OVNoteFile_note" ON "OVNoteFile" ("note");
CREATE INDEX "OVNoteFile_serverData" ON "OVNoteFile" ("serverData");
CREATE INDEX "OVNoteFile_uploaded_downloaded" ON "OVNoteFile" ("uploaded", "downloaded");
CREATE INDEX "OVChange_token" ON "OVChange" ("token");
CREATE INDEX "OVChange_order" ON "OVChange" ("order");
CREATE INDEX "OVChangeItem_change" ON "OVChangeItem" ("change");
CREATE INDEX "OVInternalChanges_changeType" ON "OVInternalChanges" ("changeType");
COMMIT;
