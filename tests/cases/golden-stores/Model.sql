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
(5, 1, '19C7F35C-4ABE-4EA0-9897-B741714D0380', CAST(X'436F6E74726F6C732001021B5B306D7F' AS TEXT), CAST(X'62656C6C20072C20666F726D2066656564200C2C20766572746963616C20746162' AS TEXT), 1700000000010000, 1700000000011000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, CAST(X'636F6E74726F6C732001021B5B306D7F' AS TEXT)),
(6, 2, 'F8FDCD06-34D5-4602-8CDB-95CB074DC84B', 'Line ends', 'of another system', 1700000000012000, 1700000000014000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 1, 1, 1700000000014000, NULL, 'line ends'),
(7, 3, '177C5187-7998-4ADC-94A0-8CC15E3CE998', 'Old line ends', 'of a third', 1700000000015000, 1700000000016000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, NULL, NULL, NULL),
(8, 4, '52736182-ECDC-4762-8AB6-60E952D6C6C2', 'A byte order mark', 'in front', 1700000000017000, 1700000000018000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'a byte order mark'),
(9, 5, '47E7B036-0F85-41AA-9476-B016E58DF172', 'Separators of lines and paragraphs', '', 1700000000019000, 1700000000020000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000020000, NULL, 'separators of lines and paragraphs'),
(11, 2, '61B5540A-60B7-4D38-9995-E760F9D319F1', '🎉 Emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴', '🧵 #🎉 #party/🥳 Groceries', 1700000000021000, 1700000000026000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '🎉 emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴'),
(12, 3, '6D632008-54CD-424F-A940-6CD31871EA14', 'שלום עולם', 'טקסט מימין לשמאל, ‏12‎ #עברית', 1700000000027000, 1700000000029000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000029000, NULL, 'שלום עולם'),
(13, 4, 'BCF32264-E420-43C3-98D3-E55EA6AFE785', 'مرحبا بالعالم', 'الحليب ، الخبز', 1700000000030000, 1700000000033000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'مرحبا بالعالم'),
(14, 5, 'B2BE2C69-B600-46F7-9013-0970DC336F8A', 'Café and café', 'Z͑ͯ̓a̢̡l̵go̢ ȩ̣́ #café', 1700000000034000, 1700000000036000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(15, 1, 'FC0ECD8F-9935-44F9-BAD5-72EE9D2C2596', 'Left over �� of halves', 'of pairs �', 1700000000037000, 1700000000038000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000038000, NULL, 'left over �� of halves'),
(16, 2, 'DBB64C0C-783B-4ACC-87D7-A77D2BCC7226', 'Astral 𝕏 𐍈 𠜎', '𝟘𝟙𝟚 #𝔱𝔞𝔤', 1700000000039000, 1700000000041000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'astral 𝕏 𐍈 𠜎'),
(17, 3, '527F5EE0-9A54-4E67-8096-623483468C27', 'İstanbul ıspanak STRASSE ß ẞ ﬁ Ǆ', 'folded #İzmir #ıspanak', 1700000000042000, 1700000000045000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'i̇stanbul ıspanak strasse ss ss fi ǆ'),
(18, 4, '909E736A-D4B9-43A9-9102-D55DA46D2E50', 'Zero​width‍ and blanks　of all kinds', '­', 1700000000046000, 1700000000047000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000047000, NULL, 'zero​width‍ and blanks　of all kinds'),
(19, 5, '1B481C82-E38D-4979-A4E4-A812E1A63FF3', '日本語の題名', '本文です。#日本/料理', 1700000000048000, 1700000000049000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 1, 1, NULL, NULL, '日本語の題名'),
(21, 2, '2E68D9E7-70FF-4502-A21C-CECBBAAA1AE8', '한국어', '한글 조합형 한 #한국', 1700000000050000, 1700000000052000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000052000, NULL, NULL),
(22, 3, '57CBA3BF-7B20-4E5B-B1E6-7A809661C6A4', '', '', 1700000000053000, 1700000000054000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(23, 4, '921B9CE5-3466-42DE-B932-2E07D510E79D', '', '', 1700000000055000, 1700000000056000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(24, 5, '8BBDFBFA-0E68-4E88-A8B0-9E97C2DCC0E7', '', '', 1700000000057000, 1700000000058000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000058000, NULL, ''),
(25, 1, '8C91FAA1-0A1C-49CB-8551-85792A56B439', '', '', 1700000000059000, 1700000000060000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(26, 2, '384E57FA-75D1-4AC8-B0F5-138C994D1004', '', '', 1700000000061000, 1700000000062000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(27, 3, 'D8769BB2-4483-4A0C-824C-60603D8F64FA', '', '', 1700000000063000, 1700000000064000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000064000, NULL, ''),
(28, 4, '4A8C929E-BB85-405F-A0BC-ABEC1FEB632C', '', '', 1700000000065000, 1700000000066000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(29, 5, '18BE4F15-934D-4104-A77C-43A2A22A4ED2', '', '', 1700000000067000, 1700000000068000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(31, 2, '66267AB0-7AD1-4E05-BAE6-DBF58828C505', '[[', '', 1700000000069000, 1700000000070000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '[['),
(32, 3, '07CE2569-4E21-4BB3-8D1E-ABAE094303C3', ']]', '', 1700000000071000, 1700000000072000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ']]'),
(33, 4, '3661BFE3-501C-45C0-A5DD-924E67C6DC34', '', '', 1700000000073000, 1700000000075000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000075000, NULL, ''),
(34, 5, '5A9BBC6A-8C91-475B-877C-D3B833A0CC3E', '', '', 1700000000076000, 1700000000079000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(35, 1, 'C7B09CD3-1BFD-4B93-8F46-58FAD60BE5C1', '', '', 1700000000080000, 1700000000081000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(36, 2, '5D0FB3E2-562D-43BF-AA96-6D67D2A8AC90', '', '', 1700000000082000, 1700000000083000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000083000, NULL, ''),
(37, 3, '116B58E6-80F0-4152-B7C7-F40EA41AA081', '', '', 1700000000084000, 1700000000085000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(38, 4, 'B058F516-225E-45C4-83B0-7692618B8B79', 'Fenced', 'int main() { return ''\''''; }', 1700000000086000, 1700000000087000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'fenced'),
(39, 5, 'B44C44AD-C059-4807-87F6-213A07A28485', 'Fenced with tildes', '[[Groceries]] #notag', 1700000000088000, 1700000000089000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000089000, NULL, 'fenced with tildes'),
(41, 2, 'BD7667B2-4CAD-4E60-9572-7D5C47DCEF99', 'Indented', '[[Groceries]]', 1700000000090000, 1700000000091000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'indented'),
(42, 3, 'E9F76101-0D74-46D5-9BA6-D4A101FE9FF5', 'Indented by a tab', 'code', 1700000000092000, 1700000000093000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000093000, NULL, NULL),
(43, 4, '7172261C-CB72-431F-B342-43A04AA0E105', 'In a list', 'item', 1700000000094000, 1700000000095000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'in a list'),
(44, 5, '00A56E48-AB6C-4890-BD60-E0299815F99B', 'In a quote', 'code', 1700000000096000, 1700000000097000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'in a quote'),
(45, 1, '2E233E44-3E7D-40F9-AD58-6673AA399920', 'Spans only', 'code and two ` ticks and three in a line', 1700000000098000, 1700000000099000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000099000, NULL, 'spans only'),
(46, 2, '6821F686-C133-4F87-BB8D-7F839C8F1D42', 'A paragraph', 'goes on indented', 1700000000100000, 1700000000101000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'a paragraph'),
(47, 3, 'EF3DD360-3AD2-48FA-A21E-B960B1FC2E53', 'Deep list', 'one', 1700000000102000, 1700000000103000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'deep list'),
(48, 4, '2914F828-78FE-4EB2-B8F6-84097C80DA95', CAST(X'5461627309696E096C696E6573' AS TEXT), CAST(X'6109622020202063' AS TEXT), 1700000000104000, 1700000000105000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000105000, NULL, CAST(X'7461627309696E096C696E6573' AS TEXT)),
(49, 5, 'FB4A95F6-A177-4625-AB67-215FA9C745C6', 'Shopping', 'milk', 1700000000106000, 1700000000107000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 3, 3, NULL, NULL, NULL),
(51, 2, '17D66A27-1F25-46B8-979C-A4420AD48010', 'a to-do for a title', 'and another', 1700000000108000, 1700000000109000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 1, 1, 1700000000109000, NULL, 'a to-do for a title'),
(52, 3, '1E83FCCE-6CBB-4579-B0F3-76C531CA6BAE', 'Tags', '#a/b/c #a/b #A/B/C #closed tag# (#in-parentheses) x#none #none #home/kitchen, #ideas!', 1700000000110000, 1700000000117000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'tags'),
(53, 4, 'B2FAA02B-A9C5-4161-B6B3-1E52B151D2DF', '#first line of tags', 'The title below', 1700000000118000, 1700000000121000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '#first line of tags'),
(54, 5, '5C08B76D-4CAE-410B-88BD-4A9758D9D2D2', 'Many levels', '', 1700000000122000, 1700000000131000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000131000, NULL, 'many levels'),
(55, 1, 'E805325C-BFB4-49A2-A2D3-4DA5D9B6042B', 'Setext title', 'and text', 1700000000132000, 1700000000133000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'setext title'),
(56, 2, '8B1D4CD9-A0B2-48B3-AA97-737D592BFE72', 'Quoted title', 'quoted', 1700000000134000, 1700000000135000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 1, NULL, NULL, NULL),
(57, 3, '7368585F-1C40-42D6-BE3A-587F33960A6B', 'A link and an image', 'https://example.com r', 1700000000136000, 1700000000137000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000137000, NULL, 'a link and an image'),
(58, 4, '1FF40967-869E-4392-8C49-4A5BC1D535AA', 'Emphasis strong gone marked code & © *', 'raw', 1700000000138000, 1700000000139000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'emphasis strong gone marked code & © *'),
(59, 5, '8689A4F6-D7BB-48B5-9712-6A1543FD0E14', '| a | b |', '|---|---| | 1 | x|y |', 1700000000140000, 1700000000142000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '| a | b |'),
(61, 2, '5522ACEA-F6DC-4288-9E40-CD12A6F48BB8', '1986. A great year', '', 1700000000143000, 1700000000144000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '1986. a great year'),
(62, 3, 'B4D34CC4-ED19-4863-851F-3B3E1D427B20', '[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[x]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]', '', 1700000000145000, 1700000000147000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, '[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[x]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]'),
(63, 4, '4E3F14A3-B7F3-4CAD-9CB8-7A3304CFCB1F', 'deep', '', 1700000000148000, 1700000000149000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000149000, NULL, NULL),
(64, 5, 'E44CB4FA-2653-406F-A44A-469AE4B91E63', 'A long day', 'It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. It rained, and nobody minded. ', 1700000000150000, 1700000000151000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'a long day'),
(65, 1, 'C02692DF-29F2-4F39-B0AA-71F2B49640C6', '🎉 A long feast', '🧁 for Zoë', 1700000000152000, 1700000000154000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 32767, NULL, NULL, '🎉 a long feast'),
(66, 2, '12BCFDD2-E63B-4571-BEF2-F7A69744C5BD', 'A long program', 'it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code it''s prose, no code ', 1700000000155000, 1700000000156000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000156000, NULL, 'a long program'),
(67, 3, '57C213F7-A411-45CD-AA78-F39AF1A00888', '', '', 1700000000157000, 1700000000158000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(68, 4, '94EE4452-36F8-457F-A7DD-F7CA59175EDA', 'Entry 0', 'naïve план rain Kitchen Kitchen.', 1420156800123456, 1700000000162000, 'Zoë’s "old" telephone 📱', 1, 1, 1700000001112000, 1, 1700000001114000, 1, 1, 1700000001111000, 1, 1700000001115000, -100, NULL, 1, 1, 1, 1, 2, NULL, NULL, 'entry 0'),
(69, 5, '94973FE3-C706-45C0-B25A-09695CC3F255', 'Entry 1', 'çay window çay ποίημα çay letter quince rain rain coat.', 1420243200123456, 1700000000165000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 9223372036854775807, NULL, 0, 0, 0, 0, 0, 1700000000165000, NULL, 'entry 1'),
(71, 2, '1B33287A-C764-4D5E-89EF-D82E793A15B6', 'Entry 2', 'naïve garden 東京 garden straße 서울 tea coat 東京.', 1420329600123456, 1700000000169000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -9223372036854775808, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 2'),
(72, 3, '17EE22DE-FB83-47F0-AAC4-F00F18DE3E6A', 'Entry 3', 'rain rain bread план river 東京 river naïve bread Kitchen.', 1420416000123456, -62135596800000000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -97, NULL, 0, 0, 0, 0, 2, -62135596800000000, NULL, 'entry 3'),
(73, 4, '09EA4351-4F83-4FC6-BEAA-8594B9BBB6CD', 'Entry 4', 'naïve 서울 letter ποίημα 東京 clock.', 1420502400123456, 253402300799999999, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -96, NULL, 0, 0, 0, 1, 0, NULL, 1, 'entry 4'),
(74, 5, '7F915701-ADBA-45EF-91B8-21AB4BE20260', 'Entry 5', 'план quince ποίημα coat ποίημα garden mañana 서울 letter.', 1420588800123456, -1, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -95, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 5'),
(75, 1, '5A539A9A-73B4-4707-BEE3-9F4FDCCCAE57', 'Entry 6', 'Übung tea coat çay ladder.', 1420675200123456, 1700000000183000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -94, NULL, 0, 0, 0, 2, 1, 1700000000183000, NULL, 'entry 6'),
(76, 2, 'C645375C-62D7-454A-8F75-8E38D701D4CB', 'Entry 7', 'naïve coat çay clock.', 1420761600123456, 1700000000185000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -93, NULL, 0, 1, 1, 1, 1, NULL, NULL, 'entry 7'),
(77, 3, '4CEFDA92-3EAD-4134-9C57-269461B36E3B', 'Entry 8', 'ladder clock letter.', 1420848000123456, 1700000000187000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -92, NULL, 0, 0, 0, 0, 1, NULL, NULL, NULL),
(78, 4, '5EC00EE1-342C-40C0-AD6D-FB9ED2E40A2D', 'Entry 9', 'ladder план план quince.', 1420934400123456, 1700000000191000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -91, NULL, 0, 0, 0, 0, 1, 1700000000191000, 2, 'entry 9'),
(79, 5, 'F38410CD-441E-44D4-A462-BBF2E41F6CA3', 'Entry 10', 'window bread mañana mañana tea Ærø Übung çay.', 1421020800123456, 1700000000194000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -90, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 10'),
(81, 2, 'BE70B860-5DB4-4898-ABB3-0A5E31127C8A', 'Entry 11', 'letter window bread 서울 Ærø.', 1421107200123456, 1700000000196000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001116000, 0, NULL, -89, NULL, 0, 0, 0, 0, 0, 1700000000196000, NULL, 'entry 11'),
(82, 3, '3DA78687-CF8C-4380-8333-8FC3513B428F', 'Entry 12', 'garden letter window.', 1421193600123456, 1700000000199000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -88, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 12'),
(83, 4, 'BCCC168E-98AE-4CEB-A820-D0C63698CDFF', 'Entry 13', 'Kitchen river ποίημα 東京 Kitchen Ærø rain quince план river.', 1421280000123456, 1700000000201000, 'Zoë’s test machine', 1, 1, 1700000001119000, 0, 1700000001120000, 0, 0, NULL, 0, NULL, -87, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 13'),
(84, 5, 'D9A3399F-FA27-4E71-9DB0-6E0D138F61A9', 'Entry 14', '서울 garden river ποίημα rain clock çay çay naïve garden river.', 1421366400123456, 1700000000203000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -86, NULL, 0, 0, 1, 0, 0, 1700000000203000, 3, NULL),
(85, 1, 'A3197DB3-2296-4177-A33D-CE87A08343DF', 'Entry 15', 'tea naïve river coat.', 1421452800123456, 1700000000207000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -85, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 15'),
(86, 2, 'DD4FF9D9-8405-4964-A8D6-9DFBB5D0481D', 'Entry 16', 'Übung 서울 план window clock Übung garden quince ποίημα.', 1421539200123456, 1700000000209000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -84, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 16'),
(87, 3, '26664EF8-362A-4440-842C-655449B250B2', 'Entry 17', '서울 çay naïve quince Ærø tea clock naïve план.', 1421625600123456, 1700000000211000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001126000, 0, 0, NULL, 0, NULL, -83, NULL, 0, 0, 0, 0, 0, 1700000000211000, NULL, 'entry 17'),
(88, 4, '23E6C88F-2782-41A3-A14F-0F8FDE42A2D3', 'Entry 18', 'Kitchen ποίημα çay tea bread 서울 straße window river naïve river.', 1421712000123456, 1700000000213000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -82, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 18'),
(89, 5, '79DD12E6-4A7C-4299-9131-25142834EE97', 'Entry 19', '서울 letter river straße ποίημα ποίημα Ærø rain coat.', 1421798400123456, 1700000000215000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001127000, -81, NULL, 0, 0, 0, 0, 1, NULL, 4, 'entry 19'),
(91, 2, '124FB3A0-251E-48B2-8944-FE508F3FC073', 'Entry 20', 'clock quince bread Kitchen quince 서울 Kitchen mañana.', 1421884800123456, 1700000000217000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -80, NULL, 0, 0, 0, 2, 1, NULL, NULL, NULL),
(92, 3, 'DB1469B6-9706-4800-B8FE-B0F5F2D09CD8', 'Entry 21', '서울 rain 東京 clock Übung.', 1421971200123456, 1700000000219000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -79, NULL, 0, 0, 1, 1, 1, NULL, NULL, 'entry 21'),
(93, 4, 'F681C915-004C-40A8-9153-1E57B521D2EE', 'Entry 22', 'quince naïve Ærø coat letter çay.', 1422057600123456, 1700000000221000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001128000, 0, NULL, -78, NULL, 0, 0, 0, 1, 0, 1700000000221000, NULL, 'entry 22'),
(94, 5, '16832231-58C6-45FA-B9A1-8C254FC1FA06', 'Entry 23', 'ladder mañana clock coat Übung straße Ærø çay çay garden.', 1422144000123456, 1700000000225000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -77, NULL, 1, 0, 0, 1, 1, NULL, NULL, 'entry 23'),
(95, 1, '96B60D1E-9732-4495-8703-970C71CDF607', 'Entry 24', 'naïve coat garden 東京 ποίημα Übung Kitchen quince coat.', 1422230400123456, 1700000000227000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -76, NULL, 0, 0, 0, 3, 0, NULL, 5, 'entry 24'),
(96, 2, 'E9341E9A-0867-4C60-94D1-49A738BC76FD', 'Entry 25', 'coat 서울 garden çay bread tea bread clock план quince river.', 1422316800123456, 1700000000229000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -75, NULL, 0, 0, 0, 0, 0, 1700000000229000, NULL, 'entry 25'),
(97, 3, '1941DFF8-E374-4B9B-A7F2-925681A28291', 'Entry 26', 'naïve quince coat quince план coat straße.', 1422403200123456, 1700000000231000, 'Zoë’s test machine', 1, 1, 1700000001131000, 0, 1700000001132000, 0, 0, NULL, 0, NULL, -74, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 26'),
(98, 4, 'D50BDD35-3BD2-4B6B-9383-5300DD55B35B', 'Entry 27', '東京 東京 clock letter çay Übung çay tea çay.', 1422489600123456, 1700000000233000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -73, NULL, 0, 0, 0, 1, 2, NULL, NULL, NULL),
(99, 5, 'F1A0FED6-54E3-417A-858B-4509AE4ADDA0', 'Entry 28', 'quince ladder clock Ærø.', 1422576000123456, 1700000000237000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -72, NULL, 0, 1, 1, 0, 0, 1700000000237000, NULL, 'entry 28'),
(101, 2, '5E703133-8E9E-4AD5-8487-B63BD4622923', 'Entry 29', 'straße naïve naïve window план Ærø straße quince bread bread.', 1422662400123456, 1700000000239000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, -71, NULL, 0, 0, 0, 1, 0, NULL, 6, 'entry 29'),
(102, 3, '72B87E8D-FA0B-446D-8295-517A5E7EA2BD', 'Entry 30', 'ladder mañana Ærø rain naïve Ærø mañana ladder Ærø ποίημα river.', 1422748800123456, 1700000000241000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -70, NULL, 0, 0, 0, 0, 0, 1700000000241000, NULL, 'entry 30'),
(103, 4, 'DB55F33C-E3F3-4C62-9BCA-88CBD19B99D6', 'Entry 31', 'ποίημα mañana 東京 Ærø rain tea rain letter mañana.', 1422835200123456, 1700000000245000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -69, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 31'),
(104, 5, 'B8A8B4A6-932C-443F-9541-C4DC75924490', 'Entry 32', 'Kitchen quince bread 서울 window ποίημα Kitchen rain Kitchen.', 1422921600123456, 1700000000247000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -68, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 32'),
(105, 1, '7D4E3BB8-2CA3-47FE-AE3D-204335BE4BF5', 'Entry 33', 'coat quince Übung quince clock coat rain 서울.', 1423008000123456, 1700000000249000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001133000, 0, NULL, -67, NULL, 0, 0, 0, 1, 2, 1700000000249000, NULL, NULL),
(106, 2, '882221EE-DC19-4301-A288-EF591BFE799D', 'Entry 34', 'план Ærø straße tea quince window river Ærø letter tea ποίημα.', 1423094400123456, 1700000000253000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001136000, 0, 0, NULL, 0, NULL, -66, NULL, 0, 0, 0, 0, 2, NULL, 7, 'entry 34'),
(107, 3, '37EB6D45-0AF4-4327-8D25-9019EB7B2E87', 'Entry 35', 'Kitchen river straße quince rain ποίημα Ærø bread.', 1423180800123456, 1700000000255000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -65, NULL, 0, 1, 1, 0, 0, NULL, NULL, 'entry 35'),
(108, 4, 'AB80B88E-3737-44CE-A1EE-35BCFC008EFE', 'Entry 36', 'garden straße straße Ærø letter tea.', 1423267200123456, 1700000000257000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -64, NULL, 0, 0, 0, 0, 1, 1700000000257000, NULL, 'entry 36'),
(109, 5, '3C42635F-2747-4790-82BD-45E6B23A73CF', 'Entry 37', 'Übung çay 서울.', 1423353600123456, 1700000000259000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -63, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 37'),
(111, 2, '8E684D8C-E50B-4FDF-AEF1-A2066AC5FAD5', 'Entry 38', 'Ærø Kitchen tea rain çay.', 1423440000123456, 1700000000263000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001137000, -62, NULL, 0, 0, 0, 0, 1, 1700000000263000, NULL, 'entry 38'),
(112, 3, 'BA760153-9D7A-40B7-AD08-221D00CF1304', 'Entry 39', 'bread tea straße clock straße ladder rain 東京 window clock 東京.', 1423526400123456, 1700000000265000, 'Zoë’s test machine', 1, 1, 1700000001141000, 0, 1700000001142000, 0, 0, NULL, 0, NULL, -61, NULL, 0, 0, 0, 0, 1, NULL, 8, NULL),
(113, 4, '47F68188-9A28-4920-8660-07F426D1FB9D', 'Entry 40', 'план çay window mañana quince quince.', 1423612800123456, 1700000000267000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -60, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 40'),
(114, 5, 'F2E603CA-B25B-40F5-B179-6B6E2A46089F', 'Entry 41', 'coat quince window coat ποίημα straße naïve 東京.', 1423699200123456, 1700000000269000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -59, NULL, 0, 0, 0, 0, 0, 1700000000269000, NULL, 'entry 41'),
(115, 1, '19A276F9-B6E1-406C-8605-BF74655E18AE', 'Entry 42', 'tea straße ladder garden clock bread Ærø.', 1423785600123456, 1700000000273000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -58, NULL, 0, 0, 1, 0, 2, NULL, NULL, 'entry 42'),
(116, 2, '33B776D0-3669-4C55-8A51-FB4EC7FE541D', 'Entry 43', 'letter rain coat letter ladder.', 1423872000123456, 1700000000275000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -57, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 43'),
(117, 3, '0C3F8746-523F-4E40-AAAC-4574CBEF587D', 'Entry 44', 'Kitchen rain ποίημα.', 1423958400123456, 1700000000277000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001143000, 0, NULL, -56, NULL, 0, 0, 0, 1, 2, 1700000000277000, 9, 'entry 44'),
(118, 4, 'A20EBB66-D8EA-4118-BB03-299E6796B566', 'Entry 45', 'план rain 서울 letter.', 1424044800123456, 1700000000279000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -55, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 45'),
(119, 5, '69605B5B-52E1-46A4-AC06-73A6EDF0E29F', 'Entry 46', 'naïve rain Ærø tea план letter quince.', 1424131200123456, 1700000000281000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -54, NULL, 1, 0, 0, 0, 1, NULL, NULL, NULL),
(121, 2, '3E792FBE-2247-4A94-B15A-B21602BF6980', 'Entry 47', '서울 Kitchen 東京 rain quince çay Ærø ladder план straße.', 1424217600123456, 1700000000283000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -53, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 47'),
(122, 3, '5C6705C8-B409-4E61-8B62-28DB4C57EBBD', 'Entry 48', 'coat garden coat ποίημα quince ladder bread garden tea.', 1424304000123456, 1700000000287000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -52, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 48'),
(123, 4, '310E4995-73A0-4780-AE18-50A590B4445C', 'Entry 49', 'window rain quince 東京 rain ladder.', 1424390400123456, 1700000000289000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -51, NULL, 0, 0, 1, 0, 1, 1700000000289000, 11, 'entry 49'),
(124, 5, 'DA6607BC-09A2-4F42-BD44-798DC2DB6380', 'Entry 50', 'straße план rain letter naïve coat.', 1424476800123456, 1700000000291000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -50, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 50'),
(125, 1, '22C610A5-11A6-4F52-8EA5-BE80FBE9A1B1', 'Entry 51', 'bread naïve план window.', 1424563200123456, 1700000000293000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001148000, 0, 0, NULL, 0, NULL, -49, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 51'),
(126, 2, 'CD639FB9-BA7C-494C-9CCC-35BA9FDE0DE9', 'Entry 52', '東京 straße letter ladder Ærø river 서울 ποίημα.', 1424649600123456, 1700000000295000, 'Zoë’s test machine', 1, 1, 1700000001153000, 0, 1700000001154000, 0, 0, NULL, 0, NULL, -48, NULL, 0, 0, 0, 0, 1, 1700000000295000, NULL, NULL),
(127, 3, '265B57ED-7B3B-46F7-AE3E-D6BD274782BB', 'Entry 53', 'naïve coat Übung letter ladder clock garden quince.', 1424736000123456, 1700000000297000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -47, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 53'),
(128, 4, '19B9207D-9EB4-445B-A9CE-B974ADF15519', 'Entry 54', 'straße tea coat Kitchen mañana.', 1424822400123456, 1700000000299000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -46, NULL, 0, 0, 0, 0, 3, NULL, 12, 'entry 54'),
(129, 5, '49CA8602-1E4D-4E5B-A02A-12D3D9D8B8AA', 'Entry 55', 'Ærø window план tea.', 1424908800123456, 1700000000301000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001155000, 0, NULL, -45, NULL, 0, 0, 0, 0, 1, 1700000000301000, NULL, 'entry 55'),
(131, 2, '848B18F2-9674-4684-8F9C-359E6770EE15', 'Entry 56', '서울 ladder clock ladder letter rain ποίημα quince.', 1424995200123456, 1700000000303000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -44, NULL, 0, 1, 1, 0, 2, NULL, NULL, 'entry 56'),
(132, 3, '9B85A3C8-52EE-40EC-A5B3-FC5E18CC6AA8', 'Entry 57', 'çay ladder ποίημα garden straße çay Ærø coat naïve coat.', 1425081600123456, 1700000000305000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001156000, -43, NULL, 0, 0, 0, 1, 0, 1700000000305000, NULL, 'entry 57'),
(133, 4, 'EBD59CA8-AF97-4CFC-9459-A505F01771C4', 'Entry 58', '東京 Übung coat letter bread straße 서울.', 1425168000123456, 1700000000307000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, -42, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(134, 5, '948DB81D-729C-42DB-B69C-BFE7D13CC5D3', 'Entry 59', 'Übung river window garden coat.', 1425254400123456, 1700000000309000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -41, NULL, 0, 0, 0, 1, 2, NULL, 13, 'entry 59'),
(135, 1, 'C84F64B0-345C-4C60-AAE5-39DE275A4E3D', 'Entry 60', 'Ærø coat window garden quince letter coat 東京.', 1425340800123456, 1700000000313000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -40, NULL, 0, 0, 0, 0, 1, 1700000000313000, NULL, 'entry 60'),
(136, 2, '76C08034-51AE-43D4-9136-7FA34E3CB264', 'Entry 61', 'Übung ποίημα 東京 東京 rain.', 1425427200123456, 1700000000315000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -39, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 61'),
(137, 3, 'AE726AE6-97C1-4020-8C68-5A4B657219B7', 'Entry 62', 'tea ladder ladder bread 東京 quince.', 1425513600123456, 1700000000317000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -38, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 62'),
(138, 4, '45050ED7-025B-40F8-A3E2-57BA1873AD0E', 'Entry 63', 'garden ποίημα Ærø coat.', 1425600000123456, 1700000000319000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -37, NULL, 0, 1, 1, 0, 0, 1700000000319000, NULL, 'entry 63'),
(139, 5, '4DF5F0D6-205B-48F1-A9A6-D39498C79BA5', 'Entry 64', 'Übung ποίημα 東京 coat ladder план çay naïve window ladder coat.', 1425686400123456, 1700000000321000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -36, NULL, 0, 0, 0, 0, 3, NULL, 14, 'entry 64'),
(141, 2, 'E9DF65D2-1036-40F6-B4F5-C9056E42FED0', 'Entry 65', 'bread clock coat план river coat ladder coat.', 1425772800123456, 1700000000323000, 'Zoë’s test machine', 1, 1, 1700000001160000, 0, 1700000001161000, 0, 0, NULL, 0, NULL, -35, NULL, 0, 0, 0, 2, 1, 1700000000323000, NULL, 'entry 65'),
(142, 3, 'E6F9DE6D-B270-4259-A087-D955A442F949', 'Entry 66', 'ποίημα window coat 서울 garden.', 1425859200123456, 1700000000325000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001162000, 0, NULL, -34, NULL, 0, 0, 0, 3, 0, NULL, NULL, 'entry 66'),
(143, 4, '0BA3AAA7-3473-4DD4-BB94-C987B4EEC5B9', 'Entry 67', 'Ærø rain straße.', 1425945600123456, 1700000000327000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -33, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 67'),
(144, 5, 'BE59F7D3-909C-4D52-91F4-7CC443BD6953', 'Entry 68', 'ποίημα çay clock 서울 clock river garden mañana.', 1426032000123456, 1700000000329000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001163000, 0, 0, NULL, 0, NULL, -32, NULL, 0, 0, 0, 1, 0, 1700000000329000, NULL, 'entry 68'),
(145, 1, 'C5A6CA3F-480C-49A2-98D3-E3A216D9A857', 'Entry 69', 'план mañana tea garden.', 1426118400123456, 1700000000331000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -31, NULL, 1, 0, 0, 1, 0, NULL, 15, 'entry 69'),
(146, 2, 'E6CB4DA6-CB15-4FB7-84D2-C40BEBA4B91B', 'Entry 70', 'straße coat 東京 план clock clock Übung bread naïve bread.', 1426204800123456, 1700000000333000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -30, NULL, 0, 0, 1, 0, 0, NULL, NULL, 'entry 70'),
(147, 3, 'CF818C81-88D9-4FDA-A68F-F355FED07B54', 'Entry 71', 'window Kitchen ladder 東京.', 1426291200123456, 1700000000335000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -29, NULL, 0, 0, 0, 1, 0, 1700000000335000, NULL, NULL),
(148, 4, '9BDD870E-4B0C-4F3D-A914-A53EC2A139CA', 'Entry 72', 'letter Kitchen Kitchen 東京 bread garden çay window ladder naïve.', 1426377600123456, 1700000000337000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -28, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 72'),
(149, 5, 'C8057E7F-0002-4984-AD40-B9239E847C4B', 'Entry 73', 'river bread Übung tea rain 서울 garden rain mañana naïve.', 1426464000123456, 1700000000339000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -27, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 73'),
(151, 2, 'EC500E02-B4F1-4E36-8FE0-D877803BBE01', 'Entry 74', 'tea Übung bread river.', 1426550400123456, 1700000000343000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -26, NULL, 0, 0, 0, 2, 1, NULL, 16, 'entry 74'),
(152, 3, '5FD8BB49-5FDB-4232-B3E5-D2D2B3DB98B7', 'Entry 75', '東京 clock naïve Übung.', 1426636800123456, 1700000000345000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -25, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 75'),
(153, 4, '44C1ECFD-2539-4BE1-97F1-2CB97DA9A01B', 'Entry 76', 'tea river tea bread window naïve.', 1426723200123456, 1700000000349000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001164000, -24, NULL, 0, 0, 0, 1, 1, 1700000000349000, NULL, 'entry 76'),
(154, 5, '28D5A5BA-8718-48EA-B7D3-FAA95EED1BA0', 'Entry 77', 'Kitchen Kitchen mañana straße clock river bread rain naïve mañana.', 1426809600123456, 1700000000351000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001165000, 0, NULL, -23, NULL, 0, 0, 1, 2, 1, NULL, NULL, NULL),
(155, 1, '8E998D4E-A418-4338-9D1F-9CFC4C823C3B', 'Entry 78', 'bread çay quince ladder Kitchen план.', 1426896000123456, 1700000000353000, 'Zoë’s test machine', 1, 1, 1700000001169000, 0, 1700000001170000, 0, 0, NULL, 0, NULL, -22, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 78'),
(156, 2, '48A88F25-87F1-42A6-AFBC-78643CB05208', 'Entry 79', 'rain garden Übung window mañana 서울.', 1426982400123456, 1700000000355000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -21, NULL, 0, 0, 0, 2, 0, 1700000000355000, 17, 'entry 79'),
(157, 3, '55C427E9-BFB6-4D3D-A849-CAC4EB181921', 'Entry 80', 'mañana çay Kitchen план.', 1427068800123456, 1700000000357000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -20, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 80'),
(158, 4, '124E7E2E-CE07-43FC-8D88-2631760EEC11', 'Entry 81', 'straße tea letter bread garden coat window.', 1427155200123456, 1700000000359000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -19, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 81'),
(159, 5, '2D79B96C-77F5-4DF8-979A-1F71BA7F1725', 'Entry 82', 'coat Kitchen coat rain.', 1427241600123456, 1700000000361000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -18, NULL, 0, 0, 0, 0, 0, 1700000000361000, NULL, 'entry 82'),
(161, 2, '2ADD6D59-D1E0-4A2E-AD92-18A7CB27866A', 'Entry 83', 'Ærø coat straße bread Übung план river naïve garden.', 1427328000123456, 1700000000363000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -17, NULL, 0, 0, 0, 1, 0, NULL, NULL, NULL),
(162, 3, '4470272E-1543-49E4-98C7-200C56C18702', 'Entry 84', 'quince 東京 Kitchen план Übung clock.', 1427414400123456, 1700000000367000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -16, NULL, 0, 1, 1, 1, 2, 1700000000367000, 18, 'entry 84'),
(163, 4, 'BC417875-BE15-4D96-9B99-7791E3A0DD68', 'Entry 85', 'Übung river ποίημα çay ladder window letter Kitchen.', 1427500800123456, 1700000000369000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001175000, 0, 0, NULL, 0, NULL, -15, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 85'),
(164, 5, '0ED53499-F0EF-4C53-B6C4-ECD918ED39BF', 'Entry 86', '서울 bread clock river bread 서울 window.', 1427587200123456, 1700000000371000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -14, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 86'),
(165, 1, '8C12631A-CD19-4096-8ECA-A7CB1389E347', 'Entry 87', 'ladder Kitchen план ladder Übung 東京.', 1427673600123456, 1700000000373000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, -13, NULL, 0, 0, 0, 1, 2, 1700000000373000, NULL, 'entry 87'),
(166, 2, 'B5E8421B-D802-47D5-BD13-8E0D617D5296', 'Entry 88', 'план river план tea mañana 東京.', 1427760000123456, 1700000000377000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001176000, 0, NULL, -12, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 88'),
(167, 3, '00260715-050F-47CD-90BF-F761F29E64A0', 'Entry 89', 'bread Übung straße window letter coat 서울 letter naïve.', 1427846400123456, 1700000000379000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -11, NULL, 0, 0, 0, 1, 2, NULL, 19, 'entry 89'),
(168, 4, '48ACA843-984E-4332-B0A3-73B41F01C0EA', 'Entry 90', 'ladder bread window straße clock Ærø coat coat river ποίημα.', 1427932800123456, 1700000000381000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -10, NULL, 0, 0, 0, 0, 0, 1700000000381000, NULL, NULL),
(169, 5, '9F12C20F-66AB-4714-8180-ADF1FFD29D6C', 'Entry 91', 'window naïve coat naïve Übung Kitchen bread bread letter ladder 東京.', 1428019200123456, 1700000000383000, 'Zoë’s test machine', 1, 1, 1700000001179000, 0, 1700000001180000, 0, 0, NULL, 0, NULL, -9, NULL, 0, 1, 1, 0, 1, NULL, NULL, 'entry 91'),
(171, 2, '789A7A87-B47C-4315-934F-BE45C3FE08C8', 'Entry 92', 'ποίημα clock ladder naïve план clock Ærø quince.', 1428105600123456, 1700000000385000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -8, NULL, 1, 0, 0, 1, 1, 1700000000385000, NULL, 'entry 92'),
(172, 3, '2BEB7B5F-75D9-4C48-BA44-3AD1BFDC3425', 'Entry 93', '東京 garden çay garden çay rain 서울 garden.', 1428192000123456, 1700000000387000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -7, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 93'),
(173, 4, '2FB317C6-0097-4996-973B-08029283E572', 'Entry 94', '서울 straße quince letter ladder 東京 coat garden çay.', 1428278400123456, 1700000000391000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -6, NULL, 0, 0, 0, 1, 1, NULL, 21, 'entry 94'),
(174, 5, '26CBF305-F275-4C96-A749-0E2F4781A1C6', 'Entry 95', 'bread Ærø coat Ærø mañana ladder garden rain tea naïve.', 1428364800123456, 1700000000395000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001181000, -5, NULL, 0, 0, 0, 0, 1, 1700000000395000, NULL, 'entry 95'),
(175, 1, 'EDA3FAAD-BF08-49EA-8EEB-E83E8A9D9EA5', 'Entry 96', 'tea ποίημα 東京 rain bread.', 1428451200123456, 1700000000397000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -4, NULL, 0, 0, 0, 0, 1, NULL, NULL, NULL),
(176, 2, '616D278A-4336-4D7A-ADC9-C46C7BE89751', 'Entry 97', 'Kitchen çay çay çay rain 서울.', 1428537600123456, 1700000000399000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -3, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 97'),
(177, 3, '40675151-20DD-4E1E-A67A-60D7796780A5', 'Entry 98', 'garden rain 東京 Übung 東京 garden Kitchen 東京 bread.', 1428624000123456, 1700000000401000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, -2, NULL, 0, 0, 1, 0, 0, 1700000000401000, NULL, 'entry 98'),
(178, 4, 'C2E8AA3D-1280-4D52-9EC7-46E0F1357780', 'Entry 99', 'coat Kitchen план river tea rain 東京.', 1428710400123456, 1700000000405000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001182000, 0, NULL, -1, NULL, 0, 0, 0, 0, 0, NULL, 22, 'entry 99'),
(179, 5, '0C1BACF7-80B6-4090-B75A-91BBDA78F75F', 'Entry 100', 'bread garden план Kitchen letter coat Übung clock ladder river çay.', 1428796800123456, 1700000000407000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 100'),
(181, 2, '25C8D36F-D1A7-4B46-9A17-1EC9BFDA302C', 'Entry 101', 'window 東京 clock garden.', 1428883200123456, 1700000000409000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 1, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 101'),
(182, 3, 'DE10BB5A-77AC-45D5-B011-E6333006CCFA', 'Entry 102', 'bread naïve garden çay letter.', 1428969600123456, 1700000000411000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001186000, 0, 0, NULL, 0, NULL, 2, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(183, 4, '6BFDC2F3-D6A3-4CF6-8EE2-0075677BA692', 'Entry 103', 'çay bread mañana ποίημα naïve clock letter clock mañana window coat.', 1429056000123456, 1700000000415000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 3, NULL, 0, 0, 0, 1, 2, 1700000000415000, NULL, 'entry 103'),
(184, 5, 'FB350C74-64E0-4EA8-BE11-DDCE3D233AE3', 'Entry 104', 'Kitchen quince 東京 garden 서울.', 1429142400123456, 1700000000417000, 'Zoë’s test machine', 1, 1, 1700000001187000, 0, 1700000001188000, 0, 0, NULL, 0, NULL, 4, NULL, 0, 0, 0, 2, 0, NULL, 23, 'entry 104'),
(185, 1, '9F1EB01E-60E0-4486-B66B-6B4A23A449A6', 'Entry 105', 'rain naïve quince tea çay tea rain.', 1429228800123456, 1700000000421000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 5, NULL, 0, 0, 1, 0, 0, NULL, NULL, 'entry 105'),
(186, 2, '4ED5F9EA-B216-457D-8D6D-0FD42EA66B59', 'Entry 106', 'ladder mañana Kitchen tea coat çay letter clock clock.', 1429315200123456, 1700000000423000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 6, NULL, 0, 0, 0, 0, 0, 1700000000423000, NULL, 'entry 106'),
(187, 3, '361B9DB0-8FC9-4DB3-B158-408D6F345EE7', 'Entry 107', 'Ærø Ærø quince bread Übung.', 1429401600123456, 1700000000425000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 7, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 107'),
(188, 4, '3B2283C0-505C-4979-8089-DAE4E626118D', 'Entry 108', 'naïve ladder naïve garden Kitchen straße window coat ladder clock.', 1429488000123456, 1700000000429000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 8, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 108'),
(189, 5, 'C5DFAFB0-8A28-4599-88FB-5796B1B77A58', 'Entry 109', 'letter Kitchen naïve çay план straße naïve.', 1429574400123456, 1700000000431000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 9, NULL, 0, 0, 0, 2, 1, 1700000000431000, 24, NULL),
(191, 2, 'F3839C18-14C1-4709-8B15-BA57DEE8C071', 'Entry 110', 'straße ladder Übung garden river coat.', 1429660800123456, 1700000000433000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001189000, 0, NULL, 10, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 110'),
(192, 3, '4E5747F9-7856-42D2-AA80-732A22FBEAC2', 'Entry 111', 'letter bread Kitchen garden rain 東京 tea garden çay naïve.', 1429747200123456, 1700000000435000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 11, NULL, 0, 0, 0, 0, 0, 1700000000435000, NULL, 'entry 111'),
(193, 4, '39EB64DC-8646-428C-9A84-80A2CC0897BD', 'Entry 112', 'план naïve mañana coat letter 東京 quince.', 1429833600123456, 1700000000437000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 12, NULL, 0, 1, 1, 0, 3, NULL, NULL, 'entry 112'),
(194, 5, 'FA9B8F0B-EF73-4535-9A2F-6FF6F93C589D', 'Entry 113', 'план bread quince river çay.', 1429920000123456, 1700000000439000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 13, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 113'),
(195, 1, '53B2FD45-F4A6-434A-9F2F-053B8BFCEB23', 'Entry 114', 'ποίημα letter 서울 naïve window mañana.', 1430006400123456, 1700000000443000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001190000, 14, NULL, 0, 0, 0, 1, 1, 1700000000443000, 25, 'entry 114'),
(196, 2, 'A7505252-7282-4EEA-B255-E8AFC1EB29B8', 'Entry 115', 'coat 東京 garden window tea Ærø naïve.', 1430092800123456, 1700000000447000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 15, NULL, 1, 0, 0, 0, 0, NULL, NULL, NULL),
(197, 3, '50027A40-4965-4FDF-B19F-1FA9270E022F', 'Entry 116', 'straße план river clock 서울 Ærø straße river window çay tea.', 1430179200123456, 1700000000449000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 16, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 116'),
(198, 4, '2373B220-20A9-4ADF-B590-7575539CFC9F', 'Entry 117', 'letter river ποίημα coat clock clock 東京 ποίημα Ærø.', 1430265600123456, 1700000000453000, 'Zoë’s test machine', 1, 1, 1700000001194000, 0, 1700000001195000, 0, 0, NULL, 0, NULL, 17, NULL, 0, 0, 0, 0, 0, 1700000000453000, NULL, 'entry 117'),
(199, 5, '2C04422B-7067-4F12-B03B-5A1DCD8997DA', 'Entry 118', 'bread bread coat naïve naïve window tea bread.', 1430352000123456, 1700000000455000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 18, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 118'),
(201, 2, 'E4085B8E-57AF-48A5-A9D9-1EA77AF18521', 'Entry 119', 'çay letter quince clock tea naïve garden 서울 mañana clock план.', 1430438400123456, 1700000000459000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001200000, 0, 0, NULL, 0, NULL, 19, NULL, 0, 1, 1, 0, 0, 1700000000459000, 26, 'entry 119'),
(202, 3, '4A45B741-D16C-4932-B076-0432B8CEA68A', 'Entry 120', '서울 window Ærø ladder rain letter bread 東京 ladder.', 1430524800123456, 1700000000461000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 20, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 120'),
(203, 4, 'DEF598A7-3AB7-4026-9D55-DFC6C9B78FE0', 'Entry 121', 'coat naïve tea.', 1430611200123456, 1700000000465000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001201000, 0, NULL, 21, NULL, 0, 0, 0, 2, 0, NULL, NULL, NULL),
(204, 5, 'F38CD6FA-CD31-4FB5-975C-4E6B02E845E0', 'Entry 122', 'garden çay Übung naïve çay Übung план план garden.', 1430697600123456, 1700000000467000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 22, NULL, 0, 0, 0, 0, 2, 1700000000467000, NULL, 'entry 122'),
(205, 1, '96AA8214-3869-4725-9A95-7D03F5BE9C09', 'Entry 123', 'mañana ladder план straße.', 1430784000123456, 1700000000469000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 23, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 123'),
(206, 2, '36817C9C-067C-4CEF-83A0-9D458C5A0F4A', 'Entry 124', 'Kitchen rain Übung garden window.', 1430870400123456, 1700000000473000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 24, NULL, 0, 0, 0, 0, 3, NULL, 27, 'entry 124'),
(207, 3, '23D08890-8615-42AF-ADAA-9923EAF34B1A', 'Entry 125', 'window river ladder план naïve mañana quince Ærø.', 1430956800123456, 1700000000475000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 25, NULL, 0, 0, 0, 1, 0, 1700000000475000, NULL, 'entry 125'),
(208, 4, 'F435574A-C2CD-4C34-B1A4-BCDFAFC522BD', 'Entry 126', 'Kitchen tea ladder план naïve mañana letter bread garden план straße.', 1431043200123456, 1700000000479000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 26, NULL, 0, 0, 1, 2, 1, NULL, NULL, 'entry 126'),
(209, 5, 'F552D434-7AE3-4D89-B269-992FC0D8A7D5', 'Entry 127', 'çay Übung quince ποίημα rain letter mañana çay garden.', 1431129600123456, 1700000000483000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 27, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 127'),
(211, 2, '474960F1-BCD9-4FD8-96F6-A2B77987A5E2', 'Entry 128', 'çay план river.', 1431216000123456, 1700000000487000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 28, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 128'),
(212, 3, 'FF752EE5-40F3-4AE1-8138-7AC85B387F15', 'Entry 129', 'garden çay çay çay ladder tea naïve straße river план.', 1431302400123456, 1700000000491000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 29, NULL, 0, 0, 0, 1, 1, NULL, 28, 'entry 129'),
(213, 4, '5E164CB8-D9A6-468B-93EC-7EFED8B2CADB', 'Entry 130', 'çay bread ladder straße mañana Kitchen bread.', 1431388800123456, 1700000000495000, 'Zoë’s test machine', 1, 1, 1700000001204000, 0, 1700000001205000, 0, 0, NULL, 0, NULL, 30, NULL, 0, 0, 0, 1, 0, 1700000000495000, NULL, 'entry 130'),
(214, 5, '6C34AEE1-72CA-4503-98AB-999A7801E5FE', 'Entry 131', 'Ærø garden coat tea 東京 서울 Kitchen çay naïve план.', 1431475200123456, 1700000000497000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 31, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 131'),
(215, 1, '0612221F-E0E8-4062-AB33-247F52FE8802', 'Entry 132', 'ποίημα çay bread quince letter.', 1431561600123456, 1700000000499000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001206000, 0, NULL, 32, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 132'),
(216, 2, '133EDE4B-19A3-4F74-BE79-68CCCC4AC62F', 'Entry 133', 'quince tea window.', 1431648000123456, 1700000000503000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001207000, 33, NULL, 0, 0, 1, 2, 0, 1700000000503000, NULL, 'entry 133'),
(217, 3, '2EBD8683-8824-4430-BCEA-518E8FE3B0AB', 'Entry 134', 'tea letter rain river garden straße.', 1431734400123456, 1700000000505000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 34, NULL, 0, 0, 0, 1, 1, NULL, 29, NULL),
(218, 4, 'AB39D5EB-7DFA-4FC3-AE2E-F2B2020051BA', 'Entry 135', 'ποίημα çay ladder Ærø.', 1431820800123456, 1700000000507000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 35, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 135'),
(219, 5, '12ADC170-1BE0-43BA-B814-E02B540BE2DA', 'Entry 136', 'план straße Kitchen.', 1431907200123456, 1700000000509000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001212000, 0, 0, NULL, 0, NULL, 36, NULL, 0, 0, 0, 1, 1, 1700000000509000, NULL, 'entry 136'),
(221, 2, '642E2558-A879-46AC-9E3A-A14195D97A6E', 'Entry 137', 'bread naïve letter mañana Übung tea.', 1431993600123456, 1700000000511000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 37, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 137'),
(222, 3, '39006ECD-6843-4F46-832F-7A2A01D16F2F', 'Entry 138', 'ladder letter straße bread quince.', 1432080000123456, 1700000000513000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 38, NULL, 1, 0, 0, 2, 0, 1700000000513000, NULL, 'entry 138'),
(223, 4, '9044F695-3D1D-4CE0-82A2-D879D64DFBE1', 'Entry 139', 'tea ποίημα mañana coat 東京 mañana.', 1432166400123456, 1700000000517000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 39, NULL, 0, 0, 0, 0, 1, NULL, 31, 'entry 139'),
(224, 5, 'F27204E4-DCE3-4792-B348-FC8252AEFB69', 'Entry 140', 'garden 東京 river bread rain coat straße quince.', 1432252800123456, 1700000000519000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 40, NULL, 0, 1, 1, 0, 0, NULL, NULL, NULL),
(225, 1, '12561DA3-0BB4-4CA5-8EC5-98C5FC9DCD98', 'Entry 141', 'straße Ærø quince straße naïve coat mañana 서울.', 1432339200123456, 1700000000521000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 41, NULL, 0, 0, 0, 1, 0, 1700000000521000, NULL, 'entry 141'),
(226, 2, 'AA8A4155-79B5-4514-8DEB-1A869F76D3B1', 'Entry 142', 'straße coat clock ladder mañana.', 1432425600123456, 1700000000523000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 42, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 142'),
(227, 3, '41F33680-B251-454C-8694-B60FAD1D468E', 'Entry 143', 'letter clock tea Ærø.', 1432512000123456, 1700000000525000, 'Zoë’s test machine', 1, 1, 1700000001214000, 0, 1700000001215000, 0, 1, 1700000001213000, 0, NULL, 43, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 143'),
(228, 4, 'EA8DCC51-6A2F-48AB-8B3E-F419996AC8AA', 'Entry 144', 'straße çay rain bread.', 1432598400123456, 1700000000527000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 44, NULL, 0, 0, 0, 0, 3, 1700000000527000, 32, 'entry 144'),
(229, 5, '3D2C2CB5-A09C-4514-BD07-FF64B3E1B2E7', 'Entry 145', 'quince ποίημα river Ærø straße Ærø clock план window 東京 Übung.', 1432684800123456, 1700000000531000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 45, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 145'),
(231, 2, 'ADC203BA-5F48-4863-B5F6-5990EA55CAA0', 'Entry 146', 'clock Ærø 東京 東京 план ladder Übung tea 서울 çay план.', 1432771200123456, 1700000000533000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 46, NULL, 0, 0, 0, 1, 0, 1700000000533000, NULL, NULL),
(232, 3, 'BE864925-822D-4DA9-A103-849EC1C5586F', 'Entry 147', 'Kitchen Übung Übung план river Übung rain mañana naïve Übung Übung.', 1432857600123456, 1700000000535000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 47, NULL, 0, 1, 1, 1, 1, NULL, NULL, 'entry 147'),
(233, 4, '4AA4F941-B8CD-4610-AA6D-E1B9DD05597D', 'Entry 148', 'letter straße ladder.', 1432944000123456, 1700000000539000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 48, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 148'),
(234, 5, '5E8B2A16-F9D4-4CB8-B2A0-BA7756C4C216', 'Entry 149', 'tea river quince.', 1433030400123456, 1700000000541000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 49, NULL, 0, 0, 0, 3, 0, 1700000000541000, 33, 'entry 149'),
(235, 1, '82C98121-D007-4F45-85E5-AA8F232ED117', 'Entry 150', 'rain garden ladder mañana bread rain 東京 çay.', 1433116800123456, 1700000000543000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 50, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 150'),
(236, 2, '14841799-2E1F-4974-920B-77352D869405', 'Entry 151', '서울 window Kitchen.', 1433203200123456, 1700000000545000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 51, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 151'),
(237, 3, '43E78BAC-ACF6-4AF3-9538-6CD0B5F36425', 'Entry 152', 'window Ærø window tea river Kitchen план clock.', 1433289600123456, 1700000000547000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001216000, 52, NULL, 0, 0, 0, 1, 2, 1700000000547000, NULL, 'entry 152'),
(238, 4, '2E8B40E3-38D3-4638-8CCA-C724B21F171C', 'Entry 153', '서울 ladder 東京 東京 Ærø clock 東京 ladder ποίημα quince план.', 1433376000123456, 1700000000549000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001217000, 0, 0, NULL, 0, NULL, 53, NULL, 0, 0, 0, 2, 0, NULL, NULL, NULL),
(239, 5, '00A73DA0-427A-4A2E-8F6D-A5B55AD82122', 'Entry 154', 'straße çay Übung 東京 план rain 서울.', 1433462400123456, 1700000000551000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001218000, 0, NULL, 54, NULL, 0, 0, 1, 0, 0, NULL, 34, 'entry 154'),
(241, 2, '194E13ED-D3F8-44CB-9465-F3BFE04F7FE2', 'Entry 155', 'quince план window.', 1433548800123456, 1700000000553000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 55, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 155'),
(242, 3, '29A62706-6408-4057-AA92-2CAB5D658582', 'Entry 156', 'mañana bread Übung letter window bread Übung quince naïve quince çay.', 1433635200123456, 1700000000557000, 'Zoë’s test machine', 1, 1, 1700000001219000, 0, 1700000001220000, 0, 0, NULL, 0, NULL, 56, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 156'),
(243, 4, 'AC172451-FD59-456B-8A55-44F43D2BAE6D', 'Entry 157', '東京 tea bread Übung.', 1433721600123456, 1700000000559000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 57, NULL, 0, 0, 0, 2, 1, 1700000000559000, NULL, 'entry 157'),
(244, 5, 'B5CA0CA3-118B-44D7-9AC1-10CB657D7A99', 'Entry 158', '서울 mañana Kitchen straße garden rain çay.', 1433808000123456, 1700000000561000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 58, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 158'),
(245, 1, '3F799890-CFE9-4438-936D-F66FA141781D', 'Entry 159', 'план Ærø 東京 clock план garden window garden quince.', 1433894400123456, 1700000000563000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 59, NULL, 0, 0, 0, 0, 2, NULL, 35, NULL),
(246, 2, '26D3B545-5B40-4336-A8CB-45C6F4DD6316', 'Entry 160', 'tea river 東京 서울.', 1433980800123456, 1700000000565000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 60, NULL, 0, 0, 0, 1, 0, 1700000000565000, NULL, 'entry 160'),
(247, 3, 'F7519CE1-C939-4294-9DEF-F920ABDBAFAE', 'Entry 161', 'straße garden tea.', 1434067200123456, 1700000000567000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 61, NULL, 1, 0, 1, 1, 0, NULL, NULL, 'entry 161'),
(248, 4, '756EB9EF-4F01-470C-A713-B772BBF57339', 'Entry 162', '東京 tea letter coat window 서울 Ærø clock.', 1434153600123456, 1700000000569000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 62, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 162'),
(249, 5, 'C258FD39-B575-477D-8221-AC35A5EEBEC9', 'Entry 163', 'straße naïve ladder.', 1434240000123456, 1700000000571000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 63, NULL, 0, 0, 0, 0, 2, 1700000000571000, NULL, 'entry 163'),
(251, 2, '3C457AC8-56D2-4CB0-88D3-C01A34911BAA', 'Entry 164', 'garden straße Übung window.', 1434326400123456, 1700000000573000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 64, NULL, 0, 0, 0, 0, 0, NULL, 36, 'entry 164'),
(252, 3, 'B078355C-66F5-4E54-AD9C-8F2159468EF2', 'Entry 165', 'clock çay garden bread naïve план coat Ærø Ærø ladder.', 1434412800123456, 1700000000575000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001221000, 0, NULL, 65, NULL, 0, 0, 0, 2, 0, 1700000000575000, NULL, NULL),
(253, 4, 'DAECCF41-0DE7-4A33-97DD-8A48EF69B31D', 'Entry 166', 'quince straße Kitchen ladder 東京 naïve naïve river.', 1434499200123456, 1700000000577000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 66, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 166'),
(254, 5, '9302A496-3862-4EBA-9522-65A7B69C8B6E', 'Entry 167', 'çay rain river Übung window letter.', 1434585600123456, 1700000000579000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 67, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 167'),
(255, 1, '3B02FF83-560A-4B81-BDC6-EB8C9EC3E8CF', 'Entry 168', 'coat rain clock rain bread straße.', 1434672000123456, 1700000000583000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 68, NULL, 0, 1, 1, 1, 2, 1700000000583000, NULL, 'entry 168'),
(256, 2, '81416092-B507-4046-AEEB-6419ECF070A2', 'Entry 169', 'план tea letter bread tea.', 1434758400123456, 1700000000585000, 'Zoë’s test machine', 1, 1, 1700000001222000, 0, 1700000001223000, 0, 0, NULL, 0, NULL, 69, NULL, 0, 0, 0, 0, 1, NULL, 37, 'entry 169'),
(257, 3, 'FB37C7F9-70BF-4E8B-8C31-4FC3FEB645D1', 'Entry 170', 'window tea Kitchen çay Kitchen Übung.', 1434844800123456, 1700000000587000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001228000, 0, 0, NULL, 0, NULL, 70, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 170'),
(258, 4, 'A99FD2A1-C989-48E8-8A5F-6701130B48A9', 'Entry 171', 'Kitchen Kitchen garden.', 1434931200123456, 1700000000589000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001229000, 71, NULL, 0, 0, 0, 3, 0, 1700000000589000, NULL, 'entry 171'),
(259, 5, '17EA233A-1D8E-4601-B15E-A7F19B391320', 'Entry 172', 'mañana naïve 서울 ποίημα naïve mañana Ærø.', 1435017600123456, 1700000000593000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 72, NULL, 0, 0, 0, 1, 1, NULL, NULL, NULL),
(261, 2, '122D4035-D5AB-4079-B2AA-6D8D878085EE', 'Entry 173', 'mañana план ladder window clock bread 서울 mañana 서울 Kitchen ποίημα.', 1435104000123456, 1700000000595000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 73, NULL, 0, 0, 0, 0, 1, 1700000000595000, NULL, 'entry 173'),
(262, 3, 'FA8D0826-C2BB-46E1-B36E-42056899D806', 'Entry 174', 'mañana quince coat mañana coat window 東京 window Übung.', 1435190400123456, 1700000000597000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 74, NULL, 0, 0, 0, 3, 0, NULL, 38, 'entry 174'),
(263, 4, '0F4ABBED-93B2-4682-AACB-E7F1FCCBB229', 'Entry 175', 'ladder Ærø bread clock window coat ποίημα Kitchen ποίημα.', 1435276800123456, 1700000000599000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 75, NULL, 0, 1, 1, 2, 1, NULL, NULL, 'entry 175'),
(264, 5, '08AFD31B-8946-424E-8573-BDD323233835', 'Entry 176', 'window 서울 Kitchen Ærø clock.', 1435363200123456, 1700000000601000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001230000, 0, NULL, 76, NULL, 0, 0, 0, 2, 1, 1700000000601000, NULL, 'entry 176'),
(265, 1, '168DB095-F807-417A-BF7F-864D9C2BD4C6', 'Entry 177', 'mañana letter план mañana.', 1435449600123456, 1700000000603000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 77, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 177'),
(266, 2, 'F9E11CFC-C9D9-46B5-8DFF-4869B65932B0', 'Entry 178', 'ποίημα bread naïve.', 1435536000123456, 1700000000605000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 78, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(267, 3, 'A6B9A2C4-C133-48E6-A7FB-55FAAF7126D4', 'Entry 179', 'tea 東京 quince rain mañana.', 1435622400123456, 1700000000607000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 79, NULL, 0, 0, 0, 0, 0, 1700000000607000, 39, 'entry 179'),
(268, 4, 'A69F4E4E-88A4-4F48-A5CD-7A222793C39F', 'Entry 180', 'bread letter coat mañana bread naïve.', 1435708800123456, 1700000000609000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 80, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 180'),
(269, 5, '46C037BB-381A-4CD9-8D9E-67B4581F53E8', 'Entry 181', 'Übung bread quince letter window river coat ποίημα план mañana 서울.', 1435795200123456, 1700000000611000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 81, NULL, 0, 0, 0, 3, 0, NULL, NULL, 'entry 181'),
(271, 2, 'AB80330A-48A7-48CC-8D45-C5310B8CBBE5', 'Entry 182', '東京 Übung 東京.', 1435881600123456, 1700000000613000, 'Zoë’s test machine', 1, 1, 1700000001236000, 0, 1700000001237000, 0, 0, NULL, 0, NULL, 82, NULL, 0, 0, 1, 1, 0, NULL, NULL, 'entry 182'),
(272, 3, '8DF9599F-9399-4056-8212-56DBE3FFE2E2', 'Entry 183', 'naïve rain ποίημα garden план план quince.', 1435968000123456, 1700000000615000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 83, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 183'),
(273, 4, '24300EA8-2DCE-4F80-B6F2-146A5417ED73', 'Entry 184', 'naïve naïve river Übung window bread ladder 東京.', 1436054400123456, 1700000000619000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 84, NULL, 1, 0, 0, 1, 0, 1700000000619000, 41, NULL),
(274, 5, 'CDBE33DE-2FBD-49C0-A117-7101826843FD', 'Entry 185', 'letter план window Kitchen quince Übung clock çay letter çay.', 1436140800123456, 1700000000621000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 85, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 185'),
(275, 1, 'D36C8408-CD6C-4E8D-A278-0664DF7A6BC4', 'Entry 186', 'coat coat tea window mañana план naïve Kitchen tea garden.', 1436227200123456, 1700000000625000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 86, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 186'),
(276, 2, 'F9583DCB-C491-46AB-9C91-34B05BDE6F3B', 'Entry 187', 'bread garden clock clock garden rain coat quince rain.', 1436313600123456, 1700000000627000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001242000, 0, 1, 1700000001238000, 0, NULL, 87, NULL, 0, 0, 0, 0, 0, 1700000000627000, NULL, 'entry 187'),
(277, 3, '1556F7C7-DC09-4C0A-94D3-8FAE2693FE3C', 'Entry 188', 'mañana 서울 tea bread 서울 letter ποίημα coat.', 1436400000123456, 1700000000629000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 88, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 188'),
(278, 4, '8697751F-DB80-46EA-937A-7A47ED094341', 'Entry 189', 'ποίημα ποίημα ποίημα rain 서울 naïve çay window garden garden.', 1436486400123456, 1700000000631000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 89, NULL, 0, 0, 1, 0, 1, NULL, 42, 'entry 189'),
(279, 5, '7E02F46A-C1AF-40E6-B556-1993FD84B446', 'Entry 190', 'straße ladder Übung quince Ærø çay Übung.', 1436572800123456, 1700000000635000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001243000, 90, NULL, 0, 0, 0, 0, 1, 1700000000635000, NULL, 'entry 190'),
(281, 2, 'D3380130-08B6-4517-AADD-35F24697AAC4', 'Entry 191', 'bread Übung план rain.', 1436659200123456, 1700000000637000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 91, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 191'),
(282, 3, '767FBD9E-C81A-4371-985E-7215BC6D20DA', 'Entry 192', 'rain çay Übung letter straße.', 1436745600123456, 1700000000639000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 92, NULL, 0, 0, 0, 1, 1, 1700000000639000, NULL, 'entry 192'),
(283, 4, '56FA1289-1D4A-4EBA-A76A-5E99C96F49B5', 'Entry 193', 'letter coat Übung mañana rain.', 1436832000123456, 1700000000641000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 93, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 193'),
(284, 5, '4B4D3C7A-1A63-46D4-834D-A15B33A4A153', 'Entry 194', '東京 rain clock naïve çay window 서울.', 1436918400123456, 1700000000645000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 94, NULL, 0, 0, 0, 1, 1, NULL, 43, 'entry 194'),
(285, 1, 'D22978C3-557A-4E64-A298-E1C80C32FD3F', 'Entry 195', 'mañana план 東京 서울 çay Ærø Ærø Übung 서울.', 1437004800123456, 1700000000649000, 'Zoë’s test machine', 1, 1, 1700000001245000, 0, 1700000001246000, 0, 0, NULL, 0, NULL, 95, NULL, 0, 0, 0, 2, 1, 1700000000649000, NULL, 'entry 195'),
(286, 2, '7BD75654-86E7-49B9-93C8-8657121EF76D', 'Entry 196', 'ladder rain 東京 mañana naïve Kitchen naïve rain tea.', 1437091200123456, 1700000000651000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 96, NULL, 0, 1, 1, 1, 2, NULL, NULL, 'entry 196'),
(287, 3, '86D70DE3-7635-4D28-B67A-7726102F2661', 'Entry 197', 'план naïve 東京 Kitchen coat ποίημα 서울 letter mañana letter window.', 1437177600123456, 1700000000653000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 97, NULL, 0, 0, 0, 1, 0, NULL, NULL, NULL),
(288, 4, '006941E5-B0C5-4F41-80CB-CC9354527DBF', 'Entry 198', '서울 straße naïve quince garden window straße garden.', 1437264000123456, 1700000000655000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001247000, 0, NULL, 98, NULL, 0, 0, 0, 1, 1, 1700000000655000, NULL, 'entry 198'),
(289, 5, 'A6B6D68C-9592-432D-BBBC-8C6B1C6DE68B', 'Entry 199', 'river tea coat coat.', 1437350400123456, 1700000000657000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 99, NULL, 0, 0, 0, 0, 1, NULL, 44, 'entry 199'),
(291, 2, '0D3C66D2-BB68-47FA-ACD3-F582A1FFF4DB', 'Entry 200', 'naïve Ærø план ladder river.', 1437436800123456, 1700000000659000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 100, NULL, 0, 0, 0, 2, 1, 1700000000659000, NULL, 'entry 200'),
(292, 3, '897B82CC-ABE6-416E-91D8-35B26E644BF4', 'Entry 201', 'ποίημα tea 東京 tea tea quince garden mañana coat clock.', 1437523200123456, 1700000000663000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 101, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 201'),
(293, 4, '3D786A88-0694-480D-9D03-CE85D1DAFC27', 'Entry 202', 'letter çay mañana ποίημα 서울 bread window river 東京 garden coat.', 1437609600123456, 1700000000665000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 102, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 202'),
(294, 5, 'E2876620-0AC4-4B2C-A9E2-51CFE193317E', 'Entry 203', 'naïve план letter garden straße window çay naïve quince window window.', 1437696000123456, 1700000000667000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 103, NULL, 0, 1, 1, 2, 1, 1700000000667000, NULL, NULL),
(295, 1, 'FCFD75C2-BDB2-4928-9837-6782D685F576', 'Entry 204', 'rain план 東京 Ærø Ærø ποίημα ladder.', 1437782400123456, 1700000000671000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001251000, 0, 0, NULL, 0, NULL, 104, NULL, 0, 0, 0, 0, 0, NULL, 45, 'entry 204'),
(296, 2, '4E514072-49D3-470F-BAED-C06CB4AF1AF4', 'Entry 205', 'garden план bread ποίημα naïve mañana план mañana bread garden.', 1437868800123456, 1700000000675000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 105, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 205'),
(297, 3, '66DA6912-2D2C-40E5-945B-7A90231D879C', 'Entry 206', 'quince Kitchen 서울 план план ποίημα ποίημα naïve bread.', 1437955200123456, 1700000000677000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 106, NULL, 0, 0, 0, 0, 1, 1700000000677000, NULL, 'entry 206'),
(298, 4, '869D61E0-5E02-48D8-9ABC-C57700560E44', 'Entry 207', '東京 план Übung mañana.', 1438041600123456, 1700000000679000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 107, NULL, 1, 0, 0, 0, 0, NULL, NULL, 'entry 207'),
(299, 5, 'C90F5659-7A2C-430F-B2A2-340E63469E1C', 'Entry 208', 'ladder план план.', 1438128000123456, 1700000000681000, 'Zoë’s test machine', 1, 1, 1700000001252000, 0, 1700000001253000, 0, 0, NULL, 0, NULL, 108, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 208'),
(301, 2, 'DCC8F4A2-3BEE-4E50-AF8C-563F55E5CE02', 'Entry 209', 'naïve window letter straße Kitchen.', 1438214400123456, 1700000000683000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001254000, 1, 1700000001255000, 109, NULL, 0, 0, 0, 1, 1, NULL, 46, NULL),
(302, 3, '09F54B9E-7320-4343-8CE6-1EC608E6F491', 'Entry 210', 'quince window Kitchen.', 1438300800123456, 1700000000685000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 110, NULL, 0, 0, 1, 2, 0, NULL, NULL, 'entry 210'),
(303, 4, '6BCAC2B0-41E9-4068-A011-4D7FBA0B42E5', 'Entry 211', 'ποίημα tea window Ærø clock Übung.', 1438387200123456, 1700000000687000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 111, NULL, 0, 0, 0, 2, 0, 1700000000687000, NULL, 'entry 211'),
(304, 5, 'A187FA86-04BE-4015-B514-25B23AF3D1CE', 'Entry 212', 'tea rain Ærø naïve naïve naïve coat naïve bread Kitchen.', 1438473600123456, 1700000000689000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 112, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 212'),
(305, 1, '862E700C-6CBD-41B3-9B3B-0E15D7358DCA', 'Entry 213', 'coat план straße mañana Kitchen garden план river letter mañana.', 1438560000123456, 1700000000693000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 113, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 213'),
(306, 2, 'DD6EF52E-D58D-499F-AE51-7D42F524347F', 'Entry 214', '東京 mañana 서울 clock çay rain çay mañana 東京 river.', 1438646400123456, 1700000000695000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 114, NULL, 0, 0, 0, 1, 1, 1700000000695000, 47, 'entry 214'),
(307, 3, 'A21F0D2F-9299-473F-9605-F297939E7404', 'Entry 215', 'letter çay çay clock ποίημα ποίημα Übung rain Übung Ærø 서울.', 1438732800123456, 1700000000697000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 115, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 215'),
(308, 4, '7F07F47E-6E33-42C2-809B-E4685FB780AB', 'Entry 216', 'clock clock çay window tea.', 1438819200123456, 1700000000699000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 116, NULL, 0, 0, 0, 1, 0, NULL, NULL, NULL),
(309, 5, 'ABE5DA3E-C004-4618-979B-EE9E697444FD', 'Entry 217', '東京 naïve 서울.', 1438905600123456, 1700000000701000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 117, NULL, 0, 0, 1, 1, 1, 1700000000701000, NULL, 'entry 217'),
(311, 2, '99DDEB32-4372-4B82-A255-6BB8920C1825', 'Entry 218', 'bread Kitchen letter.', 1438992000123456, 1700000000705000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 118, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 218'),
(312, 3, 'AE1F9AA2-6EEE-4E78-BA72-F15AD2458E65', 'Entry 219', 'mañana çay 東京 ποίημα river garden rain çay naïve Übung.', 1439078400123456, 1700000000709000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 119, NULL, 0, 0, 0, 3, 0, 1700000000709000, 48, 'entry 219'),
(313, 4, 'B5046A84-4753-45CF-BCEC-6135A0D70602', 'Entry 220', 'çay ladder 서울 ladder river coat rain ladder.', 1439164800123456, 1700000000711000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001256000, 0, NULL, 120, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 220'),
(314, 5, 'A8851583-0BCF-4306-AFCB-2E10BF041377', 'Entry 221', 'ladder garden river Übung.', 1439251200123456, 1700000000713000, 'Zoë’s test machine', 1, 1, 1700000001261000, 1, 1700000001267000, 0, 0, NULL, 0, NULL, 121, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 221'),
(315, 1, 'A8257275-3EF1-4A85-8FEC-567A4A2C8A86', 'Entry 222', 'tea naïve letter window Kitchen mañana coat bread Übung bread.', 1439337600123456, 1700000000715000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 122, NULL, 0, 0, 0, 0, 0, 1700000000715000, NULL, NULL),
(316, 2, 'A0A8F27E-08C2-4F48-B998-7C5EA1AF5EB4', 'Entry 223', 'clock mañana rain ladder clock bread window 東京.', 1439424000123456, 1700000000717000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 123, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 223'),
(317, 3, '5B0BA406-3C1D-4CB1-A3F4-7DFCB706A83F', 'Entry 224', 'ladder bread Ærø ladder coat coat window mañana tea garden.', 1439510400123456, 1700000000719000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 124, NULL, 0, 1, 1, 0, 0, NULL, 49, 'entry 224'),
(318, 4, '07764B1A-379F-42EE-9F36-CDCC065F5ACE', 'Entry 225', 'Übung straße Ærø naïve quince Übung river bread mañana ποίημα coat.', 1439596800123456, 1700000000723000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 125, NULL, 0, 0, 0, 1, 2, 1700000000723000, NULL, 'entry 225'),
(319, 5, 'B73BD8ED-0799-490A-A427-F994D2CB9C62', 'Entry 226', 'план letter mañana river quince план clock clock.', 1439683200123456, 1700000000725000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 126, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 226'),
(321, 2, '28D57CD3-058A-40BC-83E5-7ABB64A1FE95', 'Entry 227', 'garden window letter.', 1439769600123456, 1700000000727000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 127, NULL, 0, 0, 0, 0, 0, 1700000000727000, NULL, 'entry 227'),
(322, 3, 'F04CD386-95E8-4E29-814E-C4A6DB35D068', 'Entry 228', 'clock window bread Übung letter tea rain mañana план.', 1439856000123456, 1700000000729000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001268000, 128, NULL, 0, 0, 0, 1, 1, NULL, NULL, NULL),
(323, 4, 'DE0C59CD-3CB9-438E-8330-B68916A162B8', 'Entry 229', 'clock window straße clock ποίημα план naïve 東京.', 1439942400123456, 1700000000731000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 129, NULL, 0, 0, 0, 3, 0, NULL, 51, 'entry 229'),
(324, 5, '508E9F76-932A-4F49-9BF3-3D8E35722867', 'Entry 230', 'ποίημα garden mañana Kitchen план quince mañana coat tea 東京.', 1440028800123456, 1700000000733000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 130, NULL, 1, 0, 0, 1, 1, 1700000000733000, NULL, 'entry 230'),
(325, 1, 'DAABFF0B-49C8-4F33-BA8F-30E503997B40', 'Entry 231', 'garden ποίημα straße window naïve план mañana.', 1440115200123456, 1700000000737000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001269000, 0, NULL, 131, NULL, 0, 1, 1, 0, 0, NULL, NULL, 'entry 231'),
(326, 2, '1FEB8946-1DA0-46E6-95DE-D654D38BD46A', 'Entry 232', 'clock letter bread.', 1440201600123456, 1700000000739000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 132, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 232'),
(327, 3, 'E0DFD2FD-9C59-446A-915F-950ACFBD2758', 'Entry 233', 'rain çay mañana quince garden rain naïve coat.', 1440288000123456, 1700000000741000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 133, NULL, 0, 0, 0, 1, 2, 1700000000741000, NULL, 'entry 233'),
(328, 4, 'F6DA6447-64D3-4C7B-AD0C-F813AC13543F', 'Entry 234', 'rain 東京 rain straße Übung mañana çay.', 1440374400123456, 1700000000745000, 'Zoë’s test machine', 1, 1, 1700000001273000, 0, 1700000001274000, 0, 0, NULL, 0, NULL, 134, NULL, 0, 0, 0, 1, 1, NULL, 52, 'entry 234'),
(329, 5, 'C772DD39-91AE-45D7-AC57-497503B2713F', 'Entry 235', 'letter naïve straße coat bread.', 1440460800123456, 1700000000747000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 135, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(331, 2, 'BFF43CB4-B033-463F-9D81-989658B02296', 'Entry 236', 'garden naïve Übung naïve quince Übung Ærø çay straße план.', 1440547200123456, 1700000000751000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 136, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 236'),
(332, 3, '903E49F4-38B5-47E7-92C0-CE44BA3263B5', 'Entry 237', 'bread Übung Kitchen Ærø план river Ærø naïve план letter.', 1440633600123456, 1700000000753000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 137, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 237'),
(333, 4, 'FBAB2F32-AF57-415E-B6CA-C183AC0B7634', 'Entry 238', 'coat 東京 letter ποίημα çay tea 東京 東京.', 1440720000123456, 1700000000755000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001275000, 0, 0, NULL, 0, NULL, 138, NULL, 0, 0, 1, 1, 2, 1700000000755000, NULL, 'entry 238'),
(334, 5, 'B8A8760E-6FA6-43E1-8DAE-3D857ABD8E4D', 'Entry 239', 'план mañana garden 서울 Ærø coat çay Ærø.', 1440806400123456, 1700000000759000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 139, NULL, 0, 0, 0, 2, 0, NULL, 53, 'entry 239'),
(335, 1, '31084341-F5A2-4255-A602-2DBA91A15C88', 'Entry 240', 'rain tea naïve ποίημα garden straße quince.', 1440892800123456, 1700000000761000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 140, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 240'),
(336, 2, 'E9AC056C-0929-42C9-8D3E-07204FFFC2A9', 'Entry 241', 'çay 서울 ladder rain clock naïve.', 1440979200123456, 1700000000763000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 141, NULL, 0, 0, 0, 0, 0, 1700000000763000, NULL, NULL),
(337, 3, 'CD4C79B0-DB8D-494B-8120-9B7B09EC2407', 'Entry 242', 'quince clock 東京 Ærø Ærø rain straße.', 1441065600123456, 1700000000765000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001276000, 0, NULL, 142, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 242'),
(338, 4, 'B60B5974-7F24-40BA-8C3F-689720C1CF4B', 'Entry 243', 'план ladder river naïve clock straße quince river letter quince.', 1441152000123456, 1700000000767000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 143, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 243'),
(339, 5, 'C9BE1156-C105-44CC-BBAC-F8DC651D38F4', 'Entry 244', 'çay tea clock window river ποίημα.', 1441238400123456, 1700000000769000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 144, NULL, 0, 0, 0, 2, 0, 1700000000769000, 54, 'entry 244'),
(341, 2, 'B843B569-110C-45B4-92DD-133C39A17FF9', 'Entry 245', 'clock 東京 서울 naïve.', 1441324800123456, 1700000000771000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 145, NULL, 0, 0, 1, 3, 0, NULL, NULL, 'entry 245'),
(342, 3, 'BD58494F-20BC-4692-B7A2-E649A6F3C716', 'Entry 246', 'garden 서울 tea ladder план naïve ladder Kitchen çay.', 1441411200123456, 1700000000775000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 146, NULL, 0, 0, 0, 1, 2, 1700000000775000, NULL, 'entry 246'),
(343, 4, '532BD74D-E40D-4BFC-B65A-9BAEC484629F', 'Entry 247', 'tea 서울 mañana Ærø 서울 서울 bread Ærø river 東京.', 1441497600123456, 1700000000777000, 'Zoë’s test machine', 1, 1, 1700000001277000, 0, 1700000001278000, 0, 0, NULL, 1, 1700000001279000, 147, NULL, 0, 0, 0, 2, 1, NULL, NULL, NULL),
(344, 5, '3A59FB6E-293F-40D2-AA36-57A747FE246F', 'Entry 248', 'naïve clock bread mañana letter 東京 東京 Kitchen mañana.', 1441584000123456, 1700000000779000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 148, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 248'),
(345, 1, 'A7469071-718A-4971-AF0B-7D4E3F2BF57A', 'Entry 249', 'rain rain coat bread clock план план quince.', 1441670400123456, 1700000000781000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 149, NULL, 0, 0, 0, 1, 1, 1700000000781000, 55, 'entry 249'),
(346, 2, '5DA917A1-D8AE-49AD-9E5E-566D19E02506', 'Entry 250', 'coat ladder tea tea tea Kitchen river mañana.', 1441756800123456, 1700000000783000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 150, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 250'),
(347, 3, '161D539F-5761-456A-AA0F-6A7AD3F3EDD6', 'Entry 251', 'river coat Übung Kitchen bread Kitchen.', 1441843200123456, 1700000000785000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 151, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 251'),
(348, 4, 'F60F4EA3-0674-4108-920B-6C4E505CA706', 'Entry 252', 'garden rain 東京 ladder 東京 çay.', 1441929600123456, 1700000000789000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 152, NULL, 0, 1, 1, 1, 2, 1700000000789000, NULL, 'entry 252'),
(349, 5, '09A58845-0F38-42A5-9669-4BEA12866BCD', 'Entry 253', 'план rain bread ladder letter mañana coat bread clock straße.', 1442016000123456, 1700000000791000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001280000, 0, NULL, 153, NULL, 1, 0, 0, 1, 2, NULL, NULL, 'entry 253'),
(351, 2, '4722A834-9831-4F86-A042-8C3AD6A0EC30', 'Entry 254', 'Übung 서울 план план clock garden garden.', 1442102400123456, 1700000000795000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 154, NULL, 0, 0, 0, 1, 0, 1700000000795000, 56, 'entry 254'),
(352, 3, '725EF1BE-9BDD-42DA-9449-64EECFF42480', 'Entry 255', 'ladder ladder Ærø rain.', 1442188800123456, 1700000000797000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001286000, 0, 0, NULL, 0, NULL, 155, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 255'),
(353, 4, '8C176189-2E56-4B4A-8545-AA8321E3CC14', 'Entry 256', 'river clock window window rain tea letter çay bread Kitchen.', 1442275200123456, 1700000000801000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 156, NULL, 0, 0, 0, 2, 0, NULL, NULL, 'entry 256'),
(354, 5, '80A5724C-FC65-4051-87BC-5C69F9170CE8', 'Entry 257', 'ladder Ærø straße clock.', 1442361600123456, 1700000000803000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 157, NULL, 0, 0, 0, 3, 0, 1700000000803000, NULL, 'entry 257'),
(355, 1, 'B2E87E0F-FCFB-4F08-82AA-91670FB2EE19', 'Entry 258', 'план ποίημα Kitchen rain garden ladder 東京 window çay window clock.', 1442448000123456, 1700000000805000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 158, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 258'),
(356, 2, '3F33361B-2CBA-4F04-8BEE-2495F6DCFE09', 'Entry 259', 'letter window ποίημα.', 1442534400123456, 1700000000809000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 159, NULL, 0, 1, 1, 0, 0, NULL, 57, 'entry 259'),
(357, 3, '9275B1BF-C6B6-4AC5-A914-6E906F002743', 'Entry 260', '서울 coat ladder mañana ποίημα bread tea Ærø mañana Ærø.', 1442620800123456, 1700000000813000, 'Zoë’s test machine', 1, 1, 1700000001290000, 0, 1700000001291000, 0, 0, NULL, 0, NULL, 160, NULL, 0, 0, 0, 1, 1, 1700000000813000, NULL, NULL),
(358, 4, '4E56C26C-3215-4DC8-B678-F5E746CCD066', 'Entry 261', 'tea ποίημα clock mañana window.', 1442707200123456, 1700000000815000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 161, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 261'),
(359, 5, '24C46FA4-6BCC-4CAF-B2EF-ACB31402AE75', 'Entry 262', 'Übung rain garden river bread window ladder 서울.', 1442793600123456, 1700000000817000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 162, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 262'),
(361, 2, '7D77EACC-6624-4D0E-98D4-C71EDD6CDF0B', 'Entry 263', 'window çay bread bread Kitchen rain.', 1442880000123456, 1700000000819000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 163, NULL, 0, 0, 0, 0, 3, NULL, NULL, 'entry 263'),
(362, 3, 'B248C4EA-DE4F-4E3E-B052-238C7CD19F46', 'Entry 264', 'quince clock coat rain straße çay.', 1442966400123456, 1700000000821000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001292000, 0, NULL, 164, NULL, 0, 0, 0, 0, 0, NULL, 58, 'entry 264'),
(363, 4, '02F54655-99F4-48B4-B5A4-0159B3DF3EA9', 'Entry 265', 'naïve çay tea window çay çay çay ποίημα coat.', 1443052800123456, 1700000000825000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 165, NULL, 0, 0, 0, 1, 0, 1700000000825000, NULL, 'entry 265'),
(364, 5, '67A7BD38-6E6D-41AA-ABDF-7FE555EB59BA', 'Entry 266', 'ποίημα план план tea garden.', 1443139200123456, 1700000000829000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001293000, 166, NULL, 0, 0, 1, 1, 1, NULL, NULL, NULL),
(365, 1, '7798859A-ACED-47DD-90F5-51C3394180F4', 'Entry 267', 'Ærø Übung 東京 window clock.', 1443225600123456, 1700000000831000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 167, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 267'),
(366, 2, '8BE6FFA1-7B12-4C85-B305-47F48E501968', 'Entry 268', 'letter ποίημα Übung quince mañana tea bread Ærø tea Übung Übung.', 1443312000123456, 1700000000833000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 168, NULL, 0, 0, 0, 2, 1, 1700000000833000, NULL, 'entry 268'),
(367, 3, '73367392-D4F9-4C3A-86DF-B00A5AEE2E48', 'Entry 269', 'quince Kitchen 서울 ladder Übung.', 1443398400123456, 1700000000835000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 169, NULL, 0, 0, 0, 0, 0, NULL, 59, 'entry 269'),
(368, 4, 'A01C4B83-B421-41B7-BC5A-E57967EC13BF', 'Entry 270', '서울 rain letter.', 1443484800123456, 1700000000839000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 170, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 270'),
(369, 5, '4E37925E-D7CD-4FD9-B63E-CAB24D37FDC2', 'Entry 271', 'straße quince window Kitchen clock çay.', 1443571200123456, 1700000000843000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 171, NULL, 0, 0, 0, 0, 2, 1700000000843000, NULL, 'entry 271'),
(371, 2, '256B0F04-8FF4-4830-A442-CD92E3ACA68B', 'Entry 272', 'naïve ladder bread Übung 서울 bread.', 1443657600123456, 1700000000845000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001298000, 0, 0, NULL, 0, NULL, 172, NULL, 0, 0, 0, 2, 0, NULL, NULL, NULL),
(372, 3, '9D604905-DD9E-4C81-B9A6-84F575A06E55', 'Entry 273', 'garden план river rain ladder.', 1443744000123456, 1700000000849000, 'Zoë’s test machine', 1, 1, 1700000001299000, 0, 1700000001300000, 0, 0, NULL, 0, NULL, 173, NULL, 0, 0, 1, 0, 0, 1700000000849000, NULL, 'entry 273'),
(373, 4, '7789D007-1BAC-45AE-8E5F-456DB2C0573C', 'Entry 274', 'river ladder ποίημα letter ladder çay план bread ποίημα river ποίημα.', 1443830400123456, 1700000000853000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 174, NULL, 0, 0, 0, 2, 1, NULL, 61, 'entry 274'),
(374, 5, '30AE305A-500A-4674-9993-08408248C05D', 'Entry 275', 'план straße ladder bread 東京.', 1443916800123456, 1700000000855000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001301000, 0, NULL, 175, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 275'),
(375, 1, '9349C21F-C1EB-40C4-B571-ADDBDD16F9FD', 'Entry 276', 'letter quince Kitchen clock quince coat çay 서울 서울.', 1444003200123456, 1700000000859000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 176, NULL, 1, 0, 0, 2, 1, 1700000000859000, NULL, 'entry 276'),
(376, 2, 'E016B055-477B-4F25-94F1-C23832416CD8', 'Entry 277', 'letter straße window clock çay tea bread quince naïve river.', 1444089600123456, 1700000000861000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 177, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 277'),
(377, 3, '646D147A-80CB-4E6C-9D1A-C7E7DAF3EFCA', 'Entry 278', 'river çay bread clock Übung clock ποίημα Kitchen ποίημα план.', 1444176000123456, 1700000000863000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 178, NULL, 0, 0, 0, 0, 2, NULL, NULL, 'entry 278'),
(378, 4, 'F16E1A05-624B-430F-8DFA-F1181AB869E6', 'Entry 279', 'tea garden window window window план ποίημα coat letter window mañana.', 1444262400123456, 1700000000865000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 179, NULL, 0, 0, 0, 1, 0, 1700000000865000, 62, NULL),
(379, 5, 'E66D4E01-6815-4E80-9ABC-4A345764AB3F', 'Entry 280', 'naïve bread ladder Übung çay river.', 1444348800123456, 1700000000867000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 180, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 280'),
(381, 2, '7E9C3A5B-650C-4EF0-8D08-45F91ABF836E', 'Entry 281', '東京 bread quince çay clock ladder.', 1444435200123456, 1700000000869000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 181, NULL, 0, 0, 0, 2, 0, 1700000000869000, NULL, 'entry 281'),
(382, 3, '04223B87-4BA8-4344-9B78-576B0580D22C', 'Entry 282', 'план 東京 ποίημα clock план.', 1444521600123456, 1700000000871000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 182, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 282'),
(383, 4, '35B65877-C39D-4D95-A4A7-35BF7510DFE7', 'Entry 283', 'Übung letter river bread river.', 1444608000123456, 1700000000873000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 183, NULL, 0, 0, 0, 3, 0, NULL, NULL, 'entry 283'),
(384, 5, '47CC3EFC-C815-49FA-AC71-92D2364A4903', 'Entry 284', 'план window çay straße coat Übung.', 1444694400123456, 1700000000877000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 184, NULL, 0, 0, 0, 2, 1, 1700000000877000, 63, 'entry 284'),
(385, 1, '20B561CD-504C-4303-98C5-39D8D0AF926D', 'Entry 285', '서울 rain mañana garden clock план 東京 ladder bread Kitchen.', 1444780800123456, 1700000000881000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001302000, 185, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(386, 2, '569EDF65-C48C-4316-B494-E8DDA07CDAF2', 'Entry 286', 'tea straße window tea mañana 東京 Übung bread garden Kitchen naïve.', 1444867200123456, 1700000000883000, 'Zoë’s test machine', 1, 1, 1700000001308000, 0, 1700000001309000, 0, 1, 1700000001303000, 0, NULL, 186, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 286'),
(387, 3, '5F812598-D280-4306-83D1-048CF6F20EBA', 'Entry 287', 'quince çay Übung tea ladder 서울 Ærø bread.', 1444953600123456, 1700000000885000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 187, NULL, 0, 0, 0, 1, 2, 1700000000885000, NULL, 'entry 287'),
(388, 4, '04D4DDB1-9528-4111-AC42-B5AEFC200820', 'Entry 288', 'straße Kitchen window çay bread river tea naïve garden letter.', 1445040000123456, 1700000000887000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 188, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 288'),
(389, 5, '4AE59F6E-BB79-418B-8BF8-B6888948F2D9', 'Entry 289', 'window garden ποίημα river letter mañana straße план.', 1445126400123456, 1700000000889000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001310000, 0, 0, NULL, 0, NULL, 189, NULL, 0, 0, 0, 1, 2, NULL, 64, 'entry 289'),
(391, 2, 'DF482FC9-F3EC-4C8B-85B9-F6DE79AC8395', 'Entry 290', 'naïve garden clock çay план straße mañana river.', 1445212800123456, 1700000000891000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 0, NULL, 0, NULL, 190, NULL, 0, 0, 0, 0, 3, NULL, NULL, 'entry 290'),
(392, 3, 'EE401FAB-247F-467C-BB0F-274481E7F28E', 'Entry 291', '東京 план window tea 서울 çay 東京 mañana naïve Kitchen letter.', 1445299200123456, 1700000000893000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 191, NULL, 0, 0, 0, 2, 1, NULL, NULL, NULL),
(393, 4, '52CDC41F-3825-4D2F-8505-A27E9B3FBE0B', 'Entry 292', '서울 coat tea 서울 river straße ladder.', 1445385600123456, 1700000000895000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 192, NULL, 0, 0, 0, 1, 1, 1700000000895000, NULL, 'entry 292'),
(394, 5, 'BA708835-244A-4C1A-8C82-55C694692F2E', 'Entry 293', 'ποίημα 東京 rain Kitchen letter naïve bread.', 1445472000123456, 1700000000897000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 193, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 293'),
(395, 1, '80B46185-902C-479D-B0B2-D6F291E0B9A0', 'Entry 294', 'ποίημα tea river.', 1445558400123456, 1700000000899000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 194, NULL, 0, 0, 0, 0, 0, NULL, 65, 'entry 294'),
(396, 2, 'CE8195DE-007C-4C15-94DB-4FB438C25B58', 'Entry 295', 'tea rain clock coat bread.', 1445644800123456, 1700000000903000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 195, NULL, 0, 0, 0, 0, 0, 1700000000903000, NULL, 'entry 295'),
(397, 3, 'C944F131-2344-477A-BBE3-E3B360865404', 'Entry 296', 'window Ærø river quince Übung ποίημα Kitchen Übung ladder river 서울.', 1445731200123456, 1700000000907000, 'Zoë’s "old" telephone 📱', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 196, NULL, 0, 0, 0, 1, 1, NULL, NULL, 'entry 296'),
(398, 4, '46F117A4-7218-4519-B0FA-C87D624C6F7F', 'Entry 297', 'Kitchen coat ladder river Ærø ποίημα Ærø river план.', 1445817600123456, 1700000000909000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001311000, 0, NULL, 197, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 297'),
(399, 5, '76F4FA4E-65AC-400B-8A53-5D349E7A1E3E', 'Entry 298', 'straße straße river план window window 東京 coat.', 1445904000123456, 1700000000911000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 198, NULL, 0, 0, 0, 1, 0, 1700000000911000, NULL, NULL),
(401, 2, '157F6E16-E3AA-4B77-B8DF-5C25AB55DF48', 'Entry 299', 'garden tea window 東京 東京 ποίημα.', 1445990400123456, 1700000000913000, 'Zoë’s test machine', 1, 1, 1700000001317000, 0, 1700000001318000, 0, 0, NULL, 0, NULL, 199, NULL, 1, 0, 0, 2, 1, NULL, 66, 'entry 299'),
(402, 3, 'DE81109A-0161-443B-B5CF-B7CBDF541C36', 'Entry 300', 'ποίημα 서울 план quince план 東京 план.', 1446076800123456, 1700000000917000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 200, NULL, 0, 0, 0, 0, 1, 1700000000917000, NULL, 'entry 300'),
(403, 4, '63EC892B-B8C0-4901-918F-D6D3CFBFDC05', 'Entry 301', 'mañana план tea coat straße ποίημα план tea 東京 ποίημα план.', 1446163200123456, 1700000000919000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 201, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 301'),
(404, 5, 'E4514064-9BE8-4274-B50F-0BC65BB38544', 'Entry 302', 'clock naïve tea.', 1446249600123456, 1700000000921000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 202, NULL, 0, 0, 0, 1, 2, NULL, NULL, 'entry 302'),
(405, 1, '14B43B24-82EA-4467-9A15-ACAA2AB0B504', 'Entry 303', 'letter 서울 quince Kitchen tea straße rain 東京 tea.', 1446336000123456, 1700000000923000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 203, NULL, 0, 0, 0, 0, 2, 1700000000923000, NULL, 'entry 303'),
(406, 2, 'EFFD9031-9413-4821-80ED-542D22235818', 'Entry 304', 'bread ποίημα clock план straße rain bread garden ladder garden ποίημα.', 1446422400123456, 1700000000925000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 1, 1700000001319000, 204, NULL, 0, 0, 0, 2, 1, NULL, 67, NULL),
(407, 3, 'BC8C51A4-A6E9-4FD5-BA59-D32AD942E079', 'Entry 305', 'window bread river 서울.', 1446508800123456, 1700000000927000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 205, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 305'),
(408, 4, '4A275EF4-800A-4379-A7F5-A001FFEDD79A', 'Entry 306', 'bread clock Kitchen rain naïve tea tea bread план.', 1446595200123456, 1700000000929000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001324000, 0, 0, NULL, 0, NULL, 206, NULL, 0, 0, 0, 0, 0, 1700000000929000, NULL, 'entry 306'),
(409, 5, 'A3271E06-C1CF-46BA-ACD1-7F90DBBD774C', 'Entry 307', 'bread clock letter ποίημα план tea.', 1446681600123456, 1700000000931000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 207, NULL, 0, 0, 0, 3, 0, NULL, NULL, 'entry 307'),
(411, 2, 'D3548277-56F5-424C-A567-EA55712B9647', 'Entry 308', 'Kitchen bread river 東京.', 1446768000123456, 1700000000935000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 1, 1700000001325000, 0, NULL, 208, NULL, 0, 0, 0, 1, 2, 1700000000935000, NULL, 'entry 308'),
(412, 3, '7921398D-82C9-4233-8F07-ECF9477E4C0C', 'Entry 309', 'river Übung clock clock.', 1446854400123456, 1700000000939000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 209, NULL, 0, 0, 0, 0, 0, NULL, 68, 'entry 309'),
(413, 4, 'ED56B938-D1B5-42ED-8CEE-851C1565642E', 'Entry 310', 'straße Übung straße 서울 ladder garden mañana bread straße.', 1446940800123456, 1700000000941000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 210, NULL, 0, 0, 0, 3, 0, NULL, NULL, NULL),
(414, 5, '67595D16-6132-41FD-8E51-C45166950359', 'Entry 311', 'tea Ærø 東京 rain Übung quince Kitchen Ærø quince letter garden.', 1447027200123456, 1700000000943000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 211, NULL, 0, 0, 0, 0, 1, 1700000000943000, NULL, 'entry 311'),
(415, 1, '48323313-3493-4ABB-97BA-4CA3C8EDE546', 'Entry 312', 'garden quince naïve ladder bread coat mañana 서울 Kitchen garden.', 1447113600123456, 1700000000945000, 'Zoë’s test machine', 1, 1, 1700000001326000, 0, 1700000001327000, 0, 0, NULL, 0, NULL, 212, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 312'),
(416, 2, '1ED0D9B3-3E70-41AB-8C60-FBF2E332A022', 'Entry 313', 'garden ladder coat 東京 Übung Übung план Kitchen rain tea Ærø.', 1447200000123456, 1700000000949000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 213, NULL, 0, 0, 0, 1, 0, NULL, NULL, 'entry 313'),
(417, 3, 'FB6FC2AA-E2AE-4B3A-B90F-D22B6D8ABCBA', 'Entry 314', 'tea rain Ærø window Kitchen mañana coat çay план bread naïve.', 1447286400123456, 1700000000951000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 214, NULL, 0, 0, 0, 1, 0, 1700000000951000, 69, 'entry 314'),
(418, 4, '32C2C0A1-43B4-4A2F-9A17-778E079F3E70', 'Entry 315', 'window Übung Ærø bread coat Übung garden.', 1447372800123456, 1700000000953000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 215, NULL, 0, 0, 0, 2, 1, NULL, NULL, 'entry 315'),
(419, 5, 'CD039276-88AC-4D59-8319-D714FB802547', 'Entry 316', 'çay ποίημα çay 서울 letter.', 1447459200123456, 1700000000955000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 216, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'entry 316'),
(421, 2, '7956C999-20DA-4F6C-A26F-BF89E9A0F1C2', 'Entry 317', 'план garden coat rain ladder clock clock.', 1447545600123456, 1700000000957000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 217, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 317'),
(422, 3, 'C4F5F4CC-7240-4281-98C0-908456F865CD', 'Entry 318', 'quince letter Übung rain straße.', 1447632000123456, 1700000000959000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 218, NULL, 0, 0, 0, 0, 1, NULL, NULL, 'entry 318'),
(423, 4, '97C7D095-DD3C-4F62-92E8-D2EE8EED1B3D', 'Entry 319', 'garden window quince garden bread window.', 1447718400123456, 1700000000961000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 1, 1, 1700000001328000, 0, NULL, 219, NULL, 0, 0, 0, 0, 0, 1700000000961000, 71, 'entry 319'),
(424, 5, '761AFA44-CF54-4BBB-8882-D0983E20BCDF', 'Groceries', 'milk and Groceries again', 1700000000962000, 1700000000964000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'groceries'),
(425, 1, '9E6E0283-867B-4341-8CFC-ED8AA3C266C1', 'AC/DC', 'is a title with a slash', 1700000000965000, 1700000000966000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'ac/dc'),
(426, 2, '4B739F37-E9E6-4C13-9446-2CC2F96537D5', 'x|y [z]', 'is one to escape', 1700000000967000, 1700000000968000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000968000, NULL, 'x|y [z]'),
(427, 3, 'DFBBF67E-6CBE-4C50-9F0C-5071921208F4', 'Éclair', 'of other letters', 1700000000969000, 1700000000970000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(428, 4, 'BBAEC7E1-EF64-4A40-AFCD-4E2E8123F952', '', '', 1700000000971000, 1700000000972000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, ''),
(429, 5, 'C10630BF-790B-4651-BA5E-65631B6B9E91', '', '', 1700000000973000, 1700000000974000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000974000, NULL, ''),
(431, 2, '3A7C2BC7-2EA3-4506-B912-2CA8D1AFA8CA', 'By identifier', 'BBAEC7E1-EF64-4A40-AFCD-4E2E8123F952 and the empty one', 1700000000975000, 1700000000978000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'by identifier'),
(432, 3, '64E3F08E-C14D-4EB5-BCC3-54DF54D5683F', 'Links', '🎉 Groceries again !GROCERIES AC/DC x|y [z]', 1700000000979000, 1700000000990000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000000990000, NULL, 'links'),
(433, 4, '551F135F-3344-4FA6-B643-2BA0644821DC', 'To Groceries', 'a link in a title', 1700000000991000, 1700000000993000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'to groceries'),
(434, 5, '431EC2A6-1EAC-40D9-9062-CB71C39F8017', 'Chain one', 'Chain two', 1700000000994000, 1700000000996000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, NULL),
(435, 1, 'BCABF629-A690-436E-9458-1241898E65FD', 'Chain two', 'Chain three Chain one', 1700000000997000, 1700000001000000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000001000000, NULL, 'chain two'),
(436, 2, '14E111F1-A0E4-4156-9122-AE281540F058', 'Twin', 'the first, in the trash', 1420070401123456, 1700000001002000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001003000, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'twin'),
(437, 3, '67929132-901F-4F93-B5CF-DF289E3566C1', 'twin', 'the third', 1420070700123456, 1700000001005000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'twin'),
(438, 4, 'B2D4837E-9C8F-4929-A9B3-2B40CA2FD31D', 'TWIN', 'the second: links lead here', 1420070600123456, 1700000001007000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000001007000, NULL, 'twin'),
(439, 5, 'CC3581D9-C623-43EB-8306-F8865779ECA3', 'Twin', 'made at no known time, in the trash', 1420070405123456, 1700000001009000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001010000, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'twin'),
(441, 2, '3CEF731D-4CCB-4987-A965-1FA10ED8F3E5', 'Thrown away', 'and nothing took its place', 1420070410123456, 1700000001012000, 'Zoë’s test machine', 1, 0, NULL, 1, 1700000001013000, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000001012000, NULL, NULL),
(442, 3, '5AC38AEF-CCB1-4314-BCB6-6749C62623B2', 'Same moment', 'of two the one with the lower key', 1420070420123456, 1700000001015000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'same moment'),
(443, 4, 'B4E4295C-E20C-43FD-BA9C-462A1804DA98', 'Same moment', 'of two the one with the higher key', 1420070420123456, 1700000001017000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'same moment'),
(444, 5, 'D568C9FF-9C7C-45D7-A1B8-8E8913C048EF', 'To twins', 'Twin thrown away Same moment Dateless', 1700000001018000, 1700000001023000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, 1700000001023000, NULL, 'to twins'),
(445, 1, '871A63A6-08D1-4ABF-8FF9-4FEB3A7A1505', 'Dateless', 'what has no date was made first', NULL, 1700000001025000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'dateless'),
(446, 2, '010ED07F-A2FE-43D5-A6FD-397487B876D0', 'Dateless', 'made later than none', 420070400123456, 1700000001027000, 'Zoë’s test machine', 1, 0, NULL, 0, NULL, 0, 0, NULL, 0, NULL, 0, NULL, 0, 0, 0, 0, 0, NULL, NULL, 'dateless');
INSERT INTO "OVNote_large" ("pk", "text") VALUES
(1, '# It''s "quoted"

''''; DROP TABLE "OVNote"; --

#it''s# `''`'),
(2, '# Back\slash \\ C:\new\table

\n \0 \'' %s %d {} {0} ?1 :name @name $name'),
(3, CAST(X'23204E554C200020696E2061207469746C650A0A616E6420000020696E20612074657874' AS TEXT)),
(4, CAST(X'00' AS TEXT)),
(5, CAST(X'2320436F6E74726F6C732001021B5B306D7F0A0A62656C6C20072C20666F726D2066656564200C2C20766572746963616C20746162200B' AS TEXT)),
(6, CAST(X'23204C696E6520656E64730D0A0D0A6F6620616E6F746865722073797374656D0D0A2D205B205D206F6E650D0A2D205B785D2074776F0D0A2377696E646F77730D0A' AS TEXT)),
(7, CAST(X'23204F6C64206C696E6520656E64730D0D6F6620612074686972640D2D205B205D206F6E65' AS TEXT)),
(8, '﻿# A byte order mark

in front'),
(9, '# Separators of lines and paragraphs'),
(11, '# 🎉 Emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴

🧵 #🎉 #party/🥳 [[Groceries]]'),
(12, '# שלום עולם

טקסט מימין לשמאל, ‏12‎ #עברית'),
(13, '# مرحبا بالعالم

- [ ] الحليب ، الخبز
#عربي/يومي'),
(14, '# Café and café

Z͑ͯ̓a̢̡l̵go̢ ȩ̣́ #café'),
(15, '# Left over �� of halves

of pairs �'),
(16, '# Astral 𝕏 𐍈 𠜎

𝟘𝟙𝟚 #𝔱𝔞𝔤'),
(17, '# İstanbul ıspanak STRASSE ß ẞ ﬁ Ǆ

folded #İzmir #ıspanak'),
(18, '# Zero​width‍ and blanks　of all kinds

­'),
(19, '# 日本語の題名

本文です。#日本/料理

- [x] 買い物
- [ ] 掃除'),
(21, '# 한국어

한글 조합형 한 #한국'),
(22, ''),
(23, ' '),
(24, '


'),
(25, '#'),
(26, '# '),
(27, '-'),
(28, '---'),
(29, CAST(X'09' AS TEXT)),
(31, '[['),
(32, ']]'),
(33, '#home'),
(34, '#home #work

#ideas'),
(35, '![]()'),
(36, '<!-- nothing -->'),
(37, '```'),
(38, '# Fenced

```cpp
int main() { return ''\''''; }
```
'),
(39, '# Fenced with tildes

~~~
[[Groceries]] #notag
~~~'),
(41, '# Indented

    [[Groceries]]
'),
(42, CAST(X'2320496E64656E7465642062792061207461620A0A09636F6465' AS TEXT)),
(43, '# In a list

- item

      code of the item
'),
(44, '# In a quote

>     code
'),
(45, '# Spans only

`code` and ``two ` ticks`` and ```three``` in a line'),
(46, '# A paragraph
    goes on
    indented'),
(47, '# Deep list

- one
    - two
        - three
            - four'),
(48, CAST(X'23205461627309696E096C696E65730A0A6109622020202063' AS TEXT)),
(49, '# Shopping

- [ ] milk
- [x] bread
* [X] eggs
1. [ ] tea
- [] none
  - [ ] nested
> - [x] quoted'),
(51, '- [ ] a to-do for a title
- [x] and another'),
(52, '# Tags

#a/b/c #a/b #A/B/C #closed tag# (#in-parentheses) x#none \#none #home/kitchen, #ideas!'),
(53, '#first line of tags

# The title below

#home/kitchen/shelf'),
(54, '# Many levels

#1st/2nd/3rd/4th/5th/6th/7th/8th'),
(55, 'Setext title
============

and text'),
(56, '> # Quoted title
>
> - [ ] quoted'),
(57, '# [A link](https://example.com/a%20b?c="d") and ![an image](missing.png)

<https://example.com> [r]

[r]: /x ''y'''),
(58, '# *Emphasis* **strong** ~~gone~~ ==marked== `code` &amp; &copy; \*

<b>raw</b>'),
(59, '| a | b |
|---|---|
| 1 | [[x\|y]] |'),
(61, '1986\. A great year'),
(62, '[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[x]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]'),
(63, '>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>> deep'),
(64, '# A long day

' || replace(hex(zeroblob(180000)), '00', 'It rained, and nobody minded. ') || '
'),
(65, '# 🎉 A long feast

#party/🥳

' || replace(hex(zeroblob(240000)), '00', '- [ ] 🧁 for Zoë
') || '
and [[Groceries]], at last
'),
(66, '# A long program

' || replace(hex(zeroblob(200000)), '00', 'it''s prose, no code
') || '
```
end
```
'),
(67, '' || replace(hex(zeroblob(100000)), '00', ' ') || ''),
(68, '# Entry 0

naïve план rain Kitchen Kitchen.
- [ ] Kitchen ποίημα quince çay Übung.
- [x] rain tea Ærø план 東京 window 서울.
- [ ] coat Übung Kitchen mañana naïve çay mañana bread rain Ærø window.

See [[Entry 152]] and [[entry 225|another one]].

![](picture%200%20%C3%A4.png) [paper](<paper''s "0".pdf>)'),
(69, '# Entry 1

çay window çay ποίημα çay letter quince rain rain coat.

#ideas #two words#
'),
(71, '# Entry 2

naïve garden 東京 garden straße 서울 tea coat 東京.

#日本/料理 #café
- [ ] ποίημα clock ladder window 서울 ποίημα straße straße 東京 letter coat.
- [x] river window Kitchen Übung clock straße rain clock tea.
- [ ] clock rain river window window letter план rain.
'),
(72, '# Entry 3

rain rain bread план river 東京 river naïve bread Kitchen.

#reise/norge #reise/norge
- [ ] план bread clock rain 서울 tea план Kitchen план clock 서울.
- [ ] quince Ærø clock rain quince quince clock.

See [[Entry 35]] and [[entry 47|another one]].

    indented rain river Ærø.
'),
(73, '# Entry 4

naïve 서울 letter ποίημα 東京 clock.
- [x] 서울 naïve clock quince 서울 window river tea rain ladder quince.

See [[Entry 299]] and [[entry 37|another one]].
'),
(74, '# Entry 5

план quince ποίημα coat ποίημα garden mañana 서울 letter.
- [x] bread Übung garden 東京.
- [x] Übung quince quince Kitchen river Ærø window coat.
'),
(75, '# Entry 6

Übung tea coat çay ladder.

#home #two words#
- [x] ladder river Ærø 서울.
- [x] garden 서울 Kitchen river river window mañana quince tea çay.
- [ ] Übung clock 東京 rain straße straße garden garden river.

    indented garden 서울 coat Kitchen coat 東京.
'),
(76, '# Entry 7

naïve coat çay clock.
- [ ] 서울 çay 東京 rain ladder.
- [x] window naïve ladder clock Kitchen garden naïve straße ladder letter.

```
int answer = 42;
```

![](<picture 1 ä.png>) [paper](<paper''s "1".pdf>)'),
(77, '# Entry 8

ladder clock letter.
- [ ] ποίημα Übung ποίημα straße bread.

    indented ladder quince bread quince çay 서울 rain.
'),
(78, '# Entry 9

ladder план план quince.
- [ ] quince 서울 план ποίημα mañana coat ladder coat naïve ladder 東京.

See [[Entry 350]] and [[entry 93|another one]].

```
int answer = 42;
```
'),
(79, '# Entry 10

window bread mañana mañana tea Ærø Übung çay.

#work/übung #home
- [ ] rain план Übung coat straße bread 서울 Kitchen coat 서울.
'),
(81, '# Entry 11

letter window bread 서울 Ærø.

#reise/norge #日本/料理

```
int answer = 42;
```

    indented rain quince clock garden.
'),
(82, '# Entry 12

garden letter window.

#ideas/later #two words#
- [ ] letter letter 東京.
- [ ] coat tea 서울 clock план Übung 서울.
'),
(83, '# Entry 13

Kitchen river ποίημα 東京 Kitchen Ærø rain quince план river.

#café #work
- [ ] straße ποίημα garden quince rain straße rain 東京.
- [x] Übung tea letter 서울 clock 서울 straße clock 서울.
'),
(84, '# Entry 14

서울 garden river ποίημα rain clock çay çay naïve garden river.

#日本/料理 #home/kitchen

![](picture%202%20%C3%A4.png)'),
(85, '# Entry 15

tea naïve river coat.

#home #café
- [ ] Übung план tea river naïve tea naïve çay mañana straße straße.
- [x] tea план quince 東京 garden ποίημα quince Kitchen.

See [[Entry 145]] and [[entry 395|another one]].

```
int answer = 42;
```
'),
(86, '# Entry 16

Übung 서울 план window clock Übung garden quince ποίημα.

#home/kitchen #home
- [ ] bread straße mañana rain bread ladder.
- [x] coat letter window 東京 rain.
- [ ] ποίημα naïve çay ladder Kitchen.
'),
(87, '# Entry 17

서울 çay naïve quince Ærø tea clock naïve план.

#work/übung #home/kitchen/shelf
'),
(88, '# Entry 18

Kitchen ποίημα çay tea bread 서울 straße window river naïve river.
'),
(89, '# Entry 19

서울 letter river straße ποίημα ποίημα Ærø rain coat.

#café #日本/料理
- [ ] rain ποίημα garden ladder garden naïve naïve straße bread.
'),
(91, '# Entry 20

clock quince bread Kitchen quince 서울 Kitchen mañana.

#home/kitchen/shelf #work/übung
- [x] mañana tea mañana river rain rain river.
- [ ] naïve clock straße.
- [x] river quince Übung straße mañana.

    indented quince mañana coat tea.
'),
(92, '# Entry 21

서울 rain 東京 clock Übung.

#two words# #ideas
- [x] garden bread garden quince.
- [ ] rain straße Übung mañana quince 東京 window.

```
int answer = 42;
```

![](<picture 3 ä.png>)'),
(93, '# Entry 22

quince naïve Ærø coat letter çay.

#home #home/kitchen
- [x] 서울 mañana Kitchen window coat Ærø bread coat garden bread rain.
'),
(94, '# Entry 23

ladder mañana clock coat Übung straße Ærø çay çay garden.

#home/kitchen/shelf #home/kitchen/shelf
- [ ] window garden rain Kitchen.
- [x] план river план quince Kitchen clock план 서울.

See [[Entry 239]] and [[entry 180|another one]].
'),
(95, '# Entry 24

naïve coat garden 東京 ποίημα Übung Kitchen quince coat.

#work/übung #ideas
- [x] clock 서울 rain rain tea ποίημα garden.
- [x] Kitchen naïve quince Ærø river ποίημα clock.
- [x] rain rain river quince Kitchen letter ladder river coat.
'),
(96, '# Entry 25

coat 서울 garden çay bread tea bread clock план quince river.

#work #two words#
'),
(97, '# Entry 26

naïve quince coat quince план coat straße.

#work #ideas
- [ ] Übung straße window ladder coat tea garden coat naïve.
- [ ] rain naïve window window straße 서울 quince rain bread.
- [x] план Übung Übung clock quince çay mañana naïve.
'),
(98, '# Entry 27

東京 東京 clock letter çay Übung çay tea çay.
- [ ] Kitchen quince tea 東京 garden.
- [x] mañana 東京 garden tea rain clock Übung Übung letter window.
- [ ] window план Ærø.
'),
(99, '# Entry 28

quince ladder clock Ærø.

#home #work/übung

See [[Entry 97]] and [[entry 221|another one]].

```
int answer = 42;
```

![](picture%204%20%C3%A4.png) [paper](<paper''s "4".pdf>)'),
(101, '# Entry 29

straße naïve naïve window план Ærø straße quince bread bread.

#reise/norge #home/kitchen/shelf
- [x] river quince bread ποίημα rain tea çay Kitchen straße coat river.
'),
(102, '# Entry 30

ladder mañana Ærø rain naïve Ærø mañana ladder Ærø ποίημα river.

#home/kitchen #home/kitchen/shelf
'),
(103, '# Entry 31

ποίημα mañana 東京 Ærø rain tea rain letter mañana.
- [x] Kitchen 東京 Ærø.
- [x] план ladder Übung tea tea 서울 rain.

See [[Entry 206]] and [[entry 79|another one]].
'),
(104, '# Entry 32

Kitchen quince bread 서울 window ποίημα Kitchen rain Kitchen.
- [x] river ποίημα Ærø 東京 tea river tea.
'),
(105, '# Entry 33

coat quince Übung quince clock coat rain 서울.

#日本/料理 #home/kitchen/shelf
- [ ] Übung ποίημα Ærø naïve coat ποίημα.
- [x] çay ποίημα letter план garden.
- [ ] 東京 план coat window 서울.

    indented Übung çay ladder.
'),
(106, '# Entry 34

план Ærø straße tea quince window river Ærø letter tea ποίημα.

#ideas #café
- [ ] letter план çay план.
- [ ] letter river mañana çay straße.

See [[Entry 341]] and [[entry 333|another one]].

```
int answer = 42;
```
'),
(107, '# Entry 35

Kitchen river straße quince rain ποίημα Ærø bread.

![](<picture 5 ä.png>) [paper](<paper''s "5".pdf>)'),
(108, '# Entry 36

garden straße straße Ærø letter tea.

#ideas #reise/norge
- [ ] ποίημα Ærø straße.
'),
(109, '# Entry 37

Übung çay 서울.

#ideas #two words#
- [x] quince план window ποίημα straße rain river.
- [ ] 서울 ladder 서울 naïve quince window tea план план Kitchen Kitchen.
'),
(111, '# Entry 38

Ærø Kitchen tea rain çay.

#ideas/later #home/kitchen/shelf
- [ ] mañana straße river straße Übung quince clock letter 東京.

See [[Entry 249]] and [[entry 349|another one]].
'),
(112, '# Entry 39

bread tea straße clock straße ladder rain 東京 window clock 東京.

#ideas #work/übung
- [ ] 東京 план Ærø.
'),
(113, '# Entry 40

план çay window mañana quince quince.

#two words# #ideas/later
'),
(114, '# Entry 41

coat quince window coat ποίημα straße naïve 東京.

#ideas #home
'),
(115, '# Entry 42

tea straße ladder garden clock bread Ærø.
- [ ] ladder garden tea window план straße 서울 river coat.
- [ ] 서울 Kitchen Ærø план naïve.

See [[Entry 28]] and [[entry 315|another one]].

![](picture%206%20%C3%A4.png)'),
(116, '# Entry 43

letter rain coat letter ladder.

#work/übung #work/übung
- [ ] Kitchen quince ποίημα bread.
'),
(117, '# Entry 44

Kitchen rain ποίημα.

#work/übung #reise/norge
- [ ] garden garden river rain straße garden 서울 quince river Kitchen.
- [x] Übung Übung 서울 letter 東京 mañana.
- [ ] mañana 東京 straße план quince.
'),
(118, '# Entry 45

план rain 서울 letter.

#home #home
- [x] letter 東京 rain rain garden coat quince.
- [x] rain Übung river Kitchen Kitchen mañana bread garden.
- [ ] mañana mañana garden coat letter Übung.
'),
(119, '# Entry 46

naïve rain Ærø tea план letter quince.

#café #Work/Übung
- [ ] clock план window river clock mañana.
'),
(121, '# Entry 47

서울 Kitchen 東京 rain quince çay Ærø ladder план straße.

#Work/Übung #ideas/later
'),
(122, '# Entry 48

coat garden coat ποίημα quince ladder bread garden tea.
- [ ] window план ladder mañana bread straße naïve.
- [ ] план план ποίημα tea rain mañana garden Übung rain çay quince.
- [x] river mañana ποίημα bread river naïve tea.

See [[Entry 281]] and [[entry 265|another one]].
'),
(123, '# Entry 49

window rain quince 東京 rain ladder.

#home/kitchen/shelf #reise/norge
- [ ] tea tea ποίημα.

![](<picture 7 ä.png>)'),
(124, '# Entry 50

straße план rain letter naïve coat.

#ideas #home/kitchen
- [ ] naïve bread bread clock.
- [x] window clock window план çay garden rain 서울 straße.
- [ ] 東京 mañana rain ποίημα naïve bread coat çay.
'),
(125, '# Entry 51

bread naïve план window.

#ideas #home/kitchen/shelf
- [x] ποίημα Übung tea çay Kitchen window.
'),
(126, '# Entry 52

東京 straße letter ladder Ærø river 서울 ποίημα.

#日本/料理 #Work/Übung
- [ ] ποίημα naïve clock Übung план clock.
'),
(127, '# Entry 53

naïve coat Übung letter ladder clock garden quince.

#work/übung #日本/料理
- [x] tea 東京 quince rain.
- [x] window river coat tea mañana river.
'),
(128, '# Entry 54

straße tea coat Kitchen mañana.
- [ ] coat river clock çay.
- [ ] план mañana çay rain Ærø Übung naïve çay.
- [ ] 서울 window coat 서울.

```
int answer = 42;
```
'),
(129, '# Entry 55

Ærø window план tea.
- [ ] çay 서울 Ærø.
'),
(131, '# Entry 56

서울 ladder clock ladder letter rain ποίημα quince.
- [ ] mañana quince quince bread straße Ærø.
- [ ] tea straße river coat naïve bread Kitchen Übung.

![](picture%208%20%C3%A4.png) [paper](<paper''s "8".pdf>)'),
(132, '# Entry 57

çay ladder ποίημα garden straße çay Ærø coat naïve coat.
- [x] Übung window river clock çay naïve window bread ladder river.

    indented mañana 東京 straße river river river letter ποίημα Ærø tea.
'),
(133, '# Entry 58

東京 Übung coat letter bread straße 서울.

#Work/Übung #home/kitchen/shelf
'),
(134, '# Entry 59

Übung river window garden coat.

#home #日本/料理
- [x] план 東京 서울 rain bread.
- [ ] river Ærø clock Ærø quince çay letter.
- [ ] window garden quince quince letter ποίημα.
'),
(135, '# Entry 60

Ærø coat window garden quince letter coat 東京.

#two words# #日本/料理
- [ ] clock Übung window Kitchen.

See [[Entry 252]] and [[entry 127|another one]].
'),
(136, '# Entry 61

Übung ποίημα 東京 東京 rain.
'),
(137, '# Entry 62

tea ladder ladder bread 東京 quince.

#work #reise/norge
'),
(138, '# Entry 63

garden ποίημα Ærø coat.

![](<picture 9 ä.png>) [paper](<paper''s "9".pdf>)'),
(139, '# Entry 64

Übung ποίημα 東京 coat ladder план çay naïve window ladder coat.

#ideas/later #home
- [ ] clock coat 東京 rain ποίημα letter clock mañana clock bread.
- [ ] 서울 çay clock 서울 Übung Übung river window ποίημα.
- [ ] Übung mañana Kitchen rain window letter Kitchen window Übung ladder rain.

```
int answer = 42;
```
'),
(141, '# Entry 65

bread clock coat план river coat ladder coat.

#home #home/kitchen/shelf
- [x] ladder bread план Ærø quince mañana letter garden.
- [ ] Übung clock river straße mañana window garden tea Ærø.
- [x] Kitchen window river mañana план.
'),
(142, '# Entry 66

ποίημα window coat 서울 garden.

#Work/Übung #home/kitchen/shelf
- [x] window 東京 ποίημα garden bread Kitchen.
- [x] garden 東京 quince rain tea mañana Übung Ærø letter quince.
- [x] ποίημα river letter çay clock план rain coat.
'),
(143, '# Entry 67

Ærø rain straße.

#two words# #Work/Übung
- [ ] tea bread quince clock Kitchen ποίημα çay mañana 서울.
- [ ] çay garden mañana Übung.
'),
(144, '# Entry 68

ποίημα çay clock 서울 clock river garden mañana.
- [x] ladder straße ladder план план.
'),
(145, '# Entry 69

план mañana tea garden.

#reise/norge #reise/norge
- [x] naïve coat bread çay garden.

```
int answer = 42;
```
'),
(146, '# Entry 70

straße coat 東京 план clock clock Übung bread naïve bread.

#Work/Übung #Work/Übung

```
int answer = 42;
```

![](picture%2010%20%C3%A4.png)'),
(147, '# Entry 71

window Kitchen ladder 東京.
- [x] 서울 Ærø garden river clock ladder river ladder garden quince clock.

```
int answer = 42;
```
'),
(148, '# Entry 72

letter Kitchen Kitchen 東京 bread garden çay window ladder naïve.

#home/kitchen #Work/Übung
- [ ] clock quince coat quince Kitchen window ποίημα план Ærø 서울.
- [ ] rain Übung letter.

```
int answer = 42;
```
'),
(149, '# Entry 73

river bread Übung tea rain 서울 garden rain mañana naïve.
- [ ] naïve river quince clock план tea.
- [x] coat quince river letter Kitchen mañana bread window window.
'),
(151, '# Entry 74

tea Übung bread river.

#home/kitchen #home/kitchen/shelf
- [x] 서울 план window план 東京 clock window.
- [ ] window letter Ærø çay план Übung garden.
- [x] mañana tea river 東京 straße çay.

See [[Entry 278]] and [[entry 308|another one]].
'),
(152, '# Entry 75

東京 clock naïve Übung.

#work/übung #work/übung
- [x] coat 東京 quince bread river garden mañana ποίημα garden.
- [x] ladder 서울 tea 東京 tea coat tea çay letter rain.
- [ ] rain naïve letter çay clock Kitchen.
'),
(153, '# Entry 76

tea river tea bread window naïve.

#ideas/later #日本/料理
- [ ] rain Kitchen ladder tea Ærø rain garden rain.
- [x] ladder tea tea window letter quince river river ποίημα план.

See [[Entry 64]] and [[entry 112|another one]].

    indented naïve rain mañana coat Kitchen 東京 quince.
'),
(154, '# Entry 77

Kitchen Kitchen mañana straße clock river bread rain naïve mañana.
- [ ] window план 東京 garden ladder letter tea 서울.
- [x] tea coat Ærø mañana çay 東京 çay ποίημα 서울.
- [x] garden Ærø naïve straße Kitchen tea coat Übung letter.

![](<picture 11 ä.png>)'),
(155, '# Entry 78

bread çay quince ladder Kitchen план.

#work #reise/norge
- [ ] план coat mañana clock ladder letter river.
- [ ] straße naïve 서울 quince tea river naïve çay.
'),
(156, '# Entry 79

rain garden Übung window mañana 서울.

#café #work/übung
- [x] clock mañana river straße river window bread tea Ærø garden naïve.
- [x] straße ladder quince ποίημα план letter 東京 naïve 서울 letter.
'),
(157, '# Entry 80

mañana çay Kitchen план.
- [x] tea quince straße bread Übung çay garden quince çay.
'),
(158, '# Entry 81

straße tea letter bread garden coat window.
- [ ] tea Kitchen river bread ladder clock 東京 rain 東京 window 서울.
'),
(159, '# Entry 82

coat Kitchen coat rain.

#home/kitchen #café
'),
(161, '# Entry 83

Ærø coat straße bread Übung план river naïve garden.
- [x] çay letter clock clock bread.
'),
(162, '# Entry 84

quince 東京 Kitchen план Übung clock.
- [ ] план naïve letter coat план 東京 letter clock ladder.
- [ ] rain window Übung.
- [x] Kitchen Übung çay Übung ladder Ærø план straße river план план.

See [[Entry 123]] and [[entry 212|another one]].

![](picture%2012%20%C3%A4.png) [paper](<paper''s "12".pdf>)'),
(163, '# Entry 85

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
(164, '# Entry 86

서울 bread clock river bread 서울 window.

#work/übung #work
- [x] letter rain Ærø ποίημα 서울 bread 서울 garden Kitchen ποίημα.
- [ ] garden ποίημα план Übung.
'),
(165, '# Entry 87

ladder Kitchen план ladder Übung 東京.
- [x] coat letter garden quince letter ladder naïve Kitchen tea.
- [ ] window window Kitchen quince план.
- [ ] план Kitchen quince план window ποίημα straße.
'),
(166, '# Entry 88

план river план tea mañana 東京.
- [x] straße quince Ærø clock Übung bread Übung.
- [ ] river garden tea.
- [x] tea план garden план 東京 coat straße coat.

See [[Entry 346]] and [[entry 379|another one]].
'),
(167, '# Entry 89

bread Übung straße window letter coat 서울 letter naïve.
- [ ] letter naïve Kitchen letter.
- [x] letter Kitchen 서울 mañana çay план window ποίημα 서울 ladder.
- [ ] rain mañana naïve quince letter straße.
'),
(168, '# Entry 90

ladder bread window straße clock Ærø coat coat river ποίημα.

#work #home
'),
(169, '# Entry 91

window naïve coat naïve Übung Kitchen bread bread letter ladder 東京.

#home #café
- [ ] ladder straße window.

```
int answer = 42;
```

![](<picture 13 ä.png>) [paper](<paper''s "13".pdf>)'),
(171, '# Entry 92

ποίημα clock ladder naïve план clock Ærø quince.

#home/kitchen #ideas
- [x] Kitchen ποίημα window план.
- [ ] tea clock 東京 river.
'),
(172, '# Entry 93

東京 garden çay garden çay rain 서울 garden.

#Work/Übung #ideas
- [x] garden river ποίημα garden naïve tea garden.
- [x] window mañana bread 서울 план naïve river bread.
- [ ] bread straße Kitchen garden naïve garden 서울 garden.
'),
(173, '# Entry 94

서울 straße quince letter ladder 東京 coat garden çay.
- [x] 서울 bread план çay tea.
- [ ] çay Übung Übung ποίημα Übung çay 東京 naïve ποίημα çay.

See [[Entry 343]] and [[entry 230|another one]].
'),
(174, '# Entry 95

bread Ærø coat Ærø mañana ladder garden rain tea naïve.
- [ ] quince quince çay çay clock bread quince naïve river garden.

See [[Entry 178]] and [[entry 297|another one]].
'),
(175, '# Entry 96

tea ποίημα 東京 rain bread.

#home/kitchen/shelf #reise/norge
- [ ] Kitchen quince naïve Übung tea Übung straße ladder clock Übung 東京.
'),
(176, '# Entry 97

Kitchen çay çay çay rain 서울.
- [ ] straße quince tea Kitchen план naïve.
'),
(177, '# Entry 98

garden rain 東京 Übung 東京 garden Kitchen 東京 bread.

![](picture%2014%20%C3%A4.png)'),
(178, '# Entry 99

coat Kitchen план river tea rain 東京.

#home #home

See [[Entry 11]] and [[entry 115|another one]].
'),
(179, '# Entry 100

bread garden план Kitchen letter coat Übung clock ladder river çay.
- [ ] mañana river coat Kitchen Kitchen bread 東京 Ærø naïve coat.
- [ ] 서울 garden window coat Ærø ποίημα letter ladder naïve letter.
'),
(181, '# Entry 101

window 東京 clock garden.

#café #reise/norge
- [x] river coat Ærø clock straße ποίημα tea river garden 서울 bread.
- [x] çay ladder river çay Kitchen bread.
'),
(182, '# Entry 102

bread naïve garden çay letter.

#café #日本/料理
'),
(183, '# Entry 103

çay bread mañana ποίημα naïve clock letter clock mañana window coat.
- [ ] river garden çay.
- [ ] план 서울 naïve quince mañana coat.
- [x] ladder garden 東京 çay план план 서울.

See [[Entry 213]] and [[entry 293|another one]].
'),
(184, '# Entry 104

Kitchen quince 東京 garden 서울.
- [x] ladder Kitchen 東京 çay Ærø rain.
- [x] window bread 서울.
'),
(185, '# Entry 105

rain naïve quince tea çay tea rain.

#café #reise/norge

See [[Entry 194]] and [[entry 183|another one]].

![](<picture 15 ä.png>)'),
(186, '# Entry 106

ladder mañana Kitchen tea coat çay letter clock clock.

#café #home
'),
(187, '# Entry 107

Ærø Ærø quince bread Übung.

#ideas/later #ideas
- [ ] straße ποίημα 서울 naïve ποίημα naïve straße clock Ærø quince mañana.
- [ ] clock naïve bread план.
'),
(188, '# Entry 108

naïve ladder naïve garden Kitchen straße window coat ladder clock.

#日本/料理 #home/kitchen

See [[Entry 192]] and [[entry 41|another one]].
'),
(189, '# Entry 109

letter Kitchen naïve çay план straße naïve.

#ideas/later #café
- [ ] mañana Ærø coat garden mañana rain naïve coat.
- [x] ποίημα clock clock mañana Ærø coat Kitchen.
- [x] garden ladder coat çay letter план garden.
'),
(191, '# Entry 110

straße ladder Übung garden river coat.
- [x] coat window ποίημα.
'),
(192, '# Entry 111

letter bread Kitchen garden rain 東京 tea garden çay naïve.

#work/übung #ideas
'),
(193, '# Entry 112

план naïve mañana coat letter 東京 quince.

#reise/norge #日本/料理
- [ ] clock quince straße window ποίημα Ærø.
- [ ] letter mañana tea naïve.
- [ ] river mañana rain river coat clock Ærø.

![](picture%2016%20%C3%A4.png) [paper](<paper''s "16".pdf>)'),
(194, '# Entry 113

план bread quince river çay.
- [x] tea 東京 tea letter mañana.
- [ ] çay çay quince.
- [ ] ποίημα Ærø ποίημα план straße garden.
'),
(195, '# Entry 114

ποίημα letter 서울 naïve window mañana.
- [ ] rain çay mañana план rain план bread 서울 Kitchen 東京 Ærø.
- [x] Ærø 서울 letter letter 東京 clock.

See [[Entry 76]] and [[entry 165|another one]].
'),
(196, '# Entry 115

coat 東京 garden window tea Ærø naïve.

#home/kitchen #work

See [[Entry 166]] and [[entry 24|another one]].
'),
(197, '# Entry 116

straße план river clock 서울 Ærø straße river window çay tea.
- [x] river rain window 東京 straße quince.
- [x] 서울 서울 rain letter rain.
'),
(198, '# Entry 117

letter river ποίημα coat clock clock 東京 ποίημα Ærø.

#two words# #Work/Übung

See [[Entry 317]] and [[entry 232|another one]].
'),
(199, '# Entry 118

bread bread coat naïve naïve window tea bread.

#two words# #ideas
- [ ] Ærø mañana river quince.
- [x] 東京 Übung letter garden letter quince rain ladder tea.
- [x] 서울 coat mañana Übung tea.
'),
(201, '# Entry 119

çay letter quince clock tea naïve garden 서울 mañana clock план.

#café #home/kitchen/shelf

See [[Entry 156]] and [[entry 232|another one]].

    indented Übung garden rain.

![](<picture 17 ä.png>) [paper](<paper''s "17".pdf>)'),
(202, '# Entry 120

서울 window Ærø ladder rain letter bread 東京 ladder.

#ideas #home
- [ ] clock river letter Ærø letter.
- [x] план letter clock Kitchen rain Übung straße garden.
- [ ] Übung coat window clock.
'),
(203, '# Entry 121

coat naïve tea.

#home #日本/料理
- [x] river tea letter.
- [x] rain ladder ποίημα window ποίημα Kitchen план window tea.

See [[Entry 46]] and [[entry 168|another one]].
'),
(204, '# Entry 122

garden çay Übung naïve çay Übung план план garden.
- [ ] план 서울 서울 bread quince naïve ladder çay ποίημα straße.
- [ ] ladder Ærø clock tea mañana план clock river quince план rain.

```
int answer = 42;
```
'),
(205, '# Entry 123

mañana ladder план straße.
'),
(206, '# Entry 124

Kitchen rain Übung garden window.

#ideas/later #café
- [ ] ladder river coat straße clock mañana letter 서울 Kitchen 서울 tea.
- [ ] ladder naïve mañana ποίημα ποίημα quince.
- [ ] Kitchen ladder letter.

See [[Entry 338]] and [[entry 224|another one]].
'),
(207, '# Entry 125

window river ladder план naïve mañana quince Ærø.
- [x] rain ladder çay window.

```
int answer = 42;
```

    indented naïve 東京 çay.
'),
(208, '# Entry 126

Kitchen tea ladder план naïve mañana letter bread garden план straße.
- [ ] garden 서울 mañana bread.
- [x] Ærø 서울 Ærø.
- [x] rain ladder Kitchen Kitchen letter window план çay çay.

See [[Entry 105]] and [[entry 381|another one]].

![](picture%2018%20%C3%A4.png)'),
(209, '# Entry 127

çay Übung quince ποίημα rain letter mañana çay garden.

#日本/料理 #home
- [ ] Übung 서울 quince river straße 東京 Kitchen.
- [ ] rain quince çay naïve çay naïve rain window ποίημα çay river.
- [x] mañana straße rain garden Übung tea 東京.

See [[Entry 63]] and [[entry 307|another one]].
'),
(211, '# Entry 128

çay план river.

#home #work/übung

See [[Entry 287]] and [[entry 67|another one]].
'),
(212, '# Entry 129

garden çay çay çay ladder tea naïve straße river план.

#home/kitchen/shelf #reise/norge
- [ ] план ladder quince naïve 서울 quince river quince naïve coat.
- [x] ποίημα coat coat.

See [[Entry 212]] and [[entry 183|another one]].

    indented Kitchen ποίημα clock план 서울 naïve.
'),
(213, '# Entry 130

çay bread ladder straße mañana Kitchen bread.

#two words# #ideas
- [x] Übung bread naïve Kitchen clock Ærø garden window.

See [[Entry 165]] and [[entry 74|another one]].
'),
(214, '# Entry 131

Ærø garden coat tea 東京 서울 Kitchen çay naïve план.

#home/kitchen #home/kitchen/shelf
'),
(215, '# Entry 132

ποίημα çay bread quince letter.

#Work/Übung #ideas/later
- [ ] window ladder Ærø quince.
- [ ] Übung 서울 mañana bread Übung river river rain coat straße.
- [x] Ærø Übung ladder mañana 서울 bread straße mañana ladder.

```
int answer = 42;
```
'),
(216, '# Entry 133

quince tea window.

#café #work/übung
- [x] Übung garden ladder.
- [x] rain coat ποίημα mañana rain mañana straße straße çay quince clock.

See [[Entry 33]] and [[entry 142|another one]].

![](<picture 19 ä.png>)'),
(217, '# Entry 134

tea letter rain river garden straße.

#home #work/übung
- [ ] river clock ποίημα 東京.
- [x] Kitchen coat clock bread tea.
'),
(218, '# Entry 135

ποίημα çay ladder Ærø.

#日本/料理 #ideas/later
- [x] river 서울 window bread quince Kitchen tea mañana clock letter garden.

```
int answer = 42;
```

    indented coat letter çay naïve 서울 tea.
'),
(219, '# Entry 136

план straße Kitchen.

#Work/Übung #ideas/later
- [x] mañana 東京 план Ærø mañana.
- [ ] naïve tea Übung clock Ærø garden Ærø план garden tea.
'),
(221, '# Entry 137

bread naïve letter mañana Übung tea.

#ideas #home/kitchen/shelf

    indented 東京 tea straße straße план quince.
'),
(222, '# Entry 138

ladder letter straße bread quince.

#two words# #work
- [x] Übung 東京 Kitchen.
- [x] 東京 ποίημα river план naïve garden Übung çay tea.
'),
(223, '# Entry 139

tea ποίημα mañana coat 東京 mañana.

#café #home/kitchen/shelf
- [ ] straße rain Kitchen.

See [[Entry 14]] and [[entry 53|another one]].
'),
(224, '# Entry 140

garden 東京 river bread rain coat straße quince.

#work #home/kitchen

    indented quince Kitchen ποίημα 東京 garden naïve naïve 東京 ποίημα letter.

![](picture%2020%20%C3%A4.png) [paper](<paper''s "20".pdf>)'),
(225, '# Entry 141

straße Ærø quince straße naïve coat mañana 서울.
- [x] clock garden river coat mañana river çay tea letter river.
'),
(226, '# Entry 142

straße coat clock ladder mañana.

#home/kitchen/shelf #two words#
'),
(227, '# Entry 143

letter clock tea Ærø.

    indented naïve letter rain quince bread Übung план план çay.
'),
(228, '# Entry 144

straße çay rain bread.

#work/übung #two words#
- [ ] garden Ærø clock.
- [ ] rain Kitchen mañana.
- [ ] çay mañana ladder bread window.
'),
(229, '# Entry 145

quince ποίημα river Ærø straße Ærø clock план window 東京 Übung.

See [[Entry 308]] and [[entry 104|another one]].
'),
(231, '# Entry 146

clock Ærø 東京 東京 план ladder Übung tea 서울 çay план.

#Work/Übung #ideas/later
- [x] ladder naïve river 서울 rain.
'),
(232, '# Entry 147

Kitchen Übung Übung план river Übung rain mañana naïve Übung Übung.

#home/kitchen/shelf #work/übung
- [ ] river 東京 ladder quince straße bread Kitchen.
- [x] clock clock naïve bread.

![](<picture 21 ä.png>) [paper](<paper''s "21".pdf>)'),
(233, '# Entry 148

letter straße ladder.

#work #home/kitchen
- [ ] coat river clock Ærø 서울 çay ladder straße clock rain çay.
- [x] coat Kitchen naïve.
- [ ] Kitchen quince window.

See [[Entry 5]] and [[entry 334|another one]].
'),
(234, '# Entry 149

tea river quince.
- [x] 東京 ladder tea garden window rain naïve Ærø.
- [x] letter Kitchen 東京.
- [x] 서울 clock naïve ποίημα.
'),
(235, '# Entry 150

rain garden ladder mañana bread rain 東京 çay.

#ideas #work/übung
- [x] garden bread tea ladder bread letter bread план clock.
'),
(236, '# Entry 151

서울 window Kitchen.

#café #home
- [x] coat 서울 naïve rain çay 東京 bread tea Kitchen.
- [ ] Übung ποίημα coat quince mañana naïve tea clock.
- [ ] quince bread çay window ποίημα Übung.

```
int answer = 42;
```
'),
(237, '# Entry 152

window Ærø window tea river Kitchen план clock.

#two words# #ideas/later
- [x] garden Ærø çay.
- [ ] 서울 naïve çay çay Kitchen mañana rain 서울.
- [ ] план 東京 letter.
'),
(238, '# Entry 153

서울 ladder 東京 東京 Ærø clock 東京 ladder ποίημα quince план.
- [x] план Kitchen bread quince Kitchen mañana naïve çay rain rain.
- [x] bread Übung rain Übung naïve 서울 Kitchen.
'),
(239, '# Entry 154

straße çay Übung 東京 план rain 서울.

![](picture%2022%20%C3%A4.png)'),
(241, '# Entry 155

quince план window.

#home/kitchen/shelf #日本/料理
- [x] план Kitchen ladder window straße план naïve.
'),
(242, '# Entry 156

mañana bread Übung letter window bread Übung quince naïve quince çay.
- [ ] tea Ærø quince letter rain naïve coat clock çay.

See [[Entry 117]] and [[entry 372|another one]].
'),
(243, '# Entry 157

東京 tea bread Übung.
- [x] Ærø naïve ladder coat naïve 東京 garden план garden план rain.
- [ ] window window mañana letter.
- [x] garden план 東京 Kitchen bread clock clock Kitchen Kitchen.

    indented naïve ποίημα coat Ærø letter çay Übung Übung 서울 coat.
'),
(244, '# Entry 158

서울 mañana Kitchen straße garden rain çay.
- [x] mañana ladder quince.
- [x] bread quince naïve straße çay çay.
- [ ] coat bread Ærø Ærø rain bread garden.
'),
(245, '# Entry 159

план Ærø 東京 clock план garden window garden quince.

#café #work/übung
- [ ] straße garden 서울 Ærø Ærø 서울 garden.
- [ ] mañana straße clock window naïve.
'),
(246, '# Entry 160

tea river 東京 서울.
- [x] çay tea tea.

    indented rain clock Übung mañana coat window.
'),
(247, '# Entry 161

straße garden tea.
- [x] rain ποίημα 서울 Kitchen 서울 rain river clock.

![](<picture 23 ä.png>)'),
(248, '# Entry 162

東京 tea letter coat window 서울 Ærø clock.

#two words# #日本/料理
'),
(249, '# Entry 163

straße naïve ladder.
- [ ] mañana quince coat Ærø 서울.
- [ ] rain straße 東京 Ærø garden.
'),
(251, '# Entry 164

garden straße Übung window.

#work/übung #home/kitchen/shelf
'),
(252, '# Entry 165

clock çay garden bread naïve план coat Ærø Ærø ladder.

#café #home
- [x] çay 東京 東京 ποίημα tea river.
- [x] garden window rain Übung bread mañana straße letter Kitchen.

```
int answer = 42;
```
'),
(253, '# Entry 166

quince straße Kitchen ladder 東京 naïve naïve river.

#home/kitchen #work/übung
- [ ] ladder çay river.
- [x] clock Übung 서울 план clock naïve window план tea план ποίημα.
- [ ] 서울 Kitchen coat ladder straße river 서울 Kitchen.
'),
(254, '# Entry 167

çay rain river Übung window letter.
- [x] план clock bread çay mañana.
- [ ] ποίημα 東京 coat garden 서울 coat 서울 letter naïve.
'),
(255, '# Entry 168

coat rain clock rain bread straße.
- [ ] quince 東京 letter план.
- [x] tea naïve clock mañana bread naïve straße.
- [ ] Kitchen ποίημα window ποίημα straße window garden ποίημα план letter.

See [[Entry 115]] and [[entry 137|another one]].

![](picture%2024%20%C3%A4.png) [paper](<paper''s "24".pdf>)'),
(256, '# Entry 169

план tea letter bread tea.
- [ ] Kitchen план Kitchen.
'),
(257, '# Entry 170

window tea Kitchen çay Kitchen Übung.

#ideas/later #work/übung
- [x] coat quince bread Kitchen garden Ærø.
- [ ] ποίημα план Ærø план quince naïve ποίημα mañana.
- [ ] 서울 ladder straße clock çay çay Ærø rain.
'),
(258, '# Entry 171

Kitchen Kitchen garden.

#reise/norge #café
- [x] план quince план Übung.
- [x] Übung river clock tea ladder Übung.
- [x] 서울 ποίημα naïve ποίημα.
'),
(259, '# Entry 172

mañana naïve 서울 ποίημα naïve mañana Ærø.

#work #reise/norge
- [ ] rain river coat window план план ladder coat ladder.
- [x] garden straße mañana letter план river quince.

See [[Entry 44]] and [[entry 128|another one]].
'),
(261, '# Entry 173

mañana план ladder window clock bread 서울 mañana 서울 Kitchen ποίημα.

#reise/norge #two words#
- [ ] çay coat garden Kitchen straße letter 서울.
'),
(262, '# Entry 174

mañana quince coat mañana coat window 東京 window Übung.

#日本/料理 #home/kitchen/shelf
- [x] bread rain rain straße 서울 ποίημα.
- [x] ποίημα letter 東京 straße clock coat.
- [x] window 서울 bread garden.

```
int answer = 42;
```
'),
(263, '# Entry 175

ladder Ærø bread clock window coat ποίημα Kitchen ποίημα.

#home #日本/料理
- [ ] quince rain quince naïve план window.
- [x] garden bread tea.
- [x] 東京 ladder Übung window mañana Ærø Ærø coat bread.

```
int answer = 42;
```

![](<picture 25 ä.png>) [paper](<paper''s "25".pdf>)'),
(264, '# Entry 176

window 서울 Kitchen Ærø clock.
- [x] план clock clock план 서울 bread coat naïve coat.
- [ ] straße garden mañana 서울 garden quince straße ποίημα clock.
- [x] window naïve Übung çay tea 東京 clock rain bread.

```
int answer = 42;
```
'),
(265, '# Entry 177

mañana letter план mañana.
- [x] план Kitchen çay garden garden 서울 서울 window.
'),
(266, '# Entry 178

ποίημα bread naïve.

#café #home/kitchen
'),
(267, '# Entry 179

tea 東京 quince rain mañana.

#café #Work/Übung
'),
(268, '# Entry 180

bread letter coat mañana bread naïve.

#home/kitchen/shelf #日本/料理
- [x] 서울 naïve bread rain naïve.
- [ ] ladder naïve river план clock Kitchen 東京 mañana.
- [x] letter Übung çay naïve.
'),
(269, '# Entry 181

Übung bread quince letter window river coat ποίημα план mañana 서울.
- [x] план Übung window letter.
- [x] garden garden window mañana clock straße clock mañana.
- [x] letter Kitchen 東京 çay straße straße rain river.
'),
(271, '# Entry 182

東京 Übung 東京.

#home/kitchen/shelf #reise/norge
- [x] Übung ladder ποίημα rain план river ladder Kitchen mañana river.

    indented Übung straße çay letter tea Ærø.

![](picture%2026%20%C3%A4.png)'),
(272, '# Entry 183

naïve rain ποίημα garden план план quince.
- [x] 서울 window 서울 план rain straße garden Ærø window Ærø Kitchen.

    indented letter straße coat 서울.
'),
(273, '# Entry 184

naïve naïve river Übung window bread ladder 東京.
- [x] tea çay çay clock garden clock çay.

See [[Entry 104]] and [[entry 31|another one]].
'),
(274, '# Entry 185

letter план window Kitchen quince Übung clock çay letter çay.
- [ ] naïve straße план clock.
- [ ] план garden ladder 東京 coat garden quince.
- [x] letter ποίημα Kitchen Kitchen straße Ærø naïve Übung garden quince clock.

```
int answer = 42;
```
'),
(275, '# Entry 186

coat coat tea window mañana план naïve Kitchen tea garden.

#two words# #home/kitchen

See [[Entry 194]] and [[entry 38|another one]].

```
int answer = 42;
```
'),
(276, '# Entry 187

bread garden clock clock garden rain coat quince rain.

#work/übung #two words#
'),
(277, '# Entry 188

mañana 서울 tea bread 서울 letter ποίημα coat.

#reise/norge #work/übung
- [ ] coat план ποίημα çay clock river quince rain.

```
int answer = 42;
```
'),
(278, '# Entry 189

ποίημα ποίημα ποίημα rain 서울 naïve çay window garden garden.

#work #Work/Übung
- [ ] ποίημα naïve Kitchen Übung quince window river Ærø 서울.

![](<picture 27 ä.png>)'),
(279, '# Entry 190

straße ladder Übung quince Ærø çay Übung.

#日本/料理 #two words#
- [ ] Kitchen 東京 mañana 東京 clock 東京 ladder window quince.

See [[Entry 388]] and [[entry 335|another one]].
'),
(281, '# Entry 191

bread Übung план rain.
- [ ] rain straße Übung garden coat Ærø naïve quince quince.
- [ ] coat rain 東京 bread tea rain çay ποίημα 서울.
'),
(282, '# Entry 192

rain çay Übung letter straße.

#work/übung #two words#
- [ ] clock river 서울 naïve coat clock window.
- [x] letter Übung Kitchen straße window çay 서울 çay tea 서울.

```
int answer = 42;
```
'),
(283, '# Entry 193

letter coat Übung mañana rain.
- [x] план tea letter ποίημα river coat naïve river.
- [x] ποίημα 東京 straße 東京 Übung rain.
- [ ] letter Kitchen Übung quince план Übung naïve garden план quince.
'),
(284, '# Entry 194

東京 rain clock naïve çay window 서울.

#reise/norge #home/kitchen/shelf
- [ ] river window river coat ladder bread.
- [x] план garden Kitchen tea garden çay.

See [[Entry 194]] and [[entry 134|another one]].
'),
(285, '# Entry 195

mañana план 東京 서울 çay Ærø Ærø Übung 서울.

#home #home
- [x] river Kitchen rain 서울 Übung 東京 bread Übung ladder.
- [ ] план mañana coat 東京 Übung Ærø план.
- [x] ποίημα clock rain ladder straße.

See [[Entry 228]] and [[entry 210|another one]].
'),
(286, '# Entry 196

ladder rain 東京 mañana naïve Kitchen naïve rain tea.
- [ ] tea naïve coat.
- [x] Übung Ærø window rain 서울 garden ladder 서울 план 東京 bread.
- [ ] quince window ποίημα bread.

```
int answer = 42;
```

![](picture%2028%20%C3%A4.png) [paper](<paper''s "28".pdf>)'),
(287, '# Entry 197

план naïve 東京 Kitchen coat ποίημα 서울 letter mañana letter window.

#home #café
- [x] Ærø Ærø window план letter river Kitchen план letter план 東京.
'),
(288, '# Entry 198

서울 straße naïve quince garden window straße garden.

#home/kitchen/shelf #home
- [ ] bread tea window straße çay Kitchen naïve ladder.
- [x] quince план tea letter letter 서울 çay naïve.

    indented bread Ærø window çay Übung.
'),
(289, '# Entry 199

river tea coat coat.

#two words# #home/kitchen
- [ ] naïve naïve clock rain letter window план garden план.
'),
(291, '# Entry 200

naïve Ærø план ladder river.

#ideas/later #work/übung
- [x] çay ladder план.
- [x] letter coat tea clock garden tea.
- [ ] bread Kitchen çay quince ladder Kitchen bread naïve ποίημα 東京.

    indented garden river ladder letter naïve rain.
'),
(292, '# Entry 201

ποίημα tea 東京 tea tea quince garden mañana coat clock.

#work/übung #日本/料理
- [ ] Ærø quince 東京.

See [[Entry 242]] and [[entry 318|another one]].

    indented 서울 river bread coat ποίημα tea coat ladder naïve letter tea.
'),
(293, '# Entry 202

letter çay mañana ποίημα 서울 bread window river 東京 garden coat.
- [ ] çay çay garden straße clock.
- [x] letter Kitchen garden letter window Ærø clock bread clock.
- [x] ποίημα çay ladder Übung coat window 東京 window river Ærø.

```
int answer = 42;
```
'),
(294, '# Entry 203

naïve план letter garden straße window çay naïve quince window window.

#ideas #work/übung
- [x] coat letter naïve river Ærø.
- [x] garden quince Ærø mañana bread.
- [ ] coat letter ποίημα Ærø Übung.

![](<picture 29 ä.png>) [paper](<paper''s "29".pdf>)'),
(295, '# Entry 204

rain план 東京 Ærø Ærø ποίημα ladder.

#ideas #reise/norge

See [[Entry 142]] and [[entry 84|another one]].

```
int answer = 42;
```
'),
(296, '# Entry 205

garden план bread ποίημα naïve mañana план mañana bread garden.

#work #café
- [x] план план ladder Ærø.
- [ ] letter rain clock план window ποίημα.

See [[Entry 40]] and [[entry 13|another one]].
'),
(297, '# Entry 206

quince Kitchen 서울 план план ποίημα ποίημα naïve bread.
- [ ] letter garden window ladder mañana ποίημα mañana.
'),
(298, '# Entry 207

東京 план Übung mañana.
'),
(299, '# Entry 208

ladder план план.
- [ ] window letter rain quince naïve garden river ladder garden mañana 서울.
- [x] Kitchen Kitchen river naïve ποίημα.
- [ ] naïve mañana rain çay bread.
'),
(301, '# Entry 209

naïve window letter straße Kitchen.

#home/kitchen/shelf #two words#
- [x] план river ποίημα river naïve ποίημα river straße çay 서울 план.
- [ ] clock garden Übung quince план 서울 window quince Ærø.
'),
(302, '# Entry 210

quince window Kitchen.

#Work/Übung #Work/Übung
- [x] Kitchen mañana naïve 서울 clock coat bread 서울 ladder.
- [x] straße ποίημα river rain naïve ladder letter 東京.

![](picture%2030%20%C3%A4.png)'),
(303, '# Entry 211

ποίημα tea window Ærø clock Übung.

#café #work/übung
- [x] план quince 東京 window naïve quince mañana quince bread bread quince.
- [x] tea quince letter.

```
int answer = 42;
```
'),
(304, '# Entry 212

tea rain Ærø naïve naïve naïve coat naïve bread Kitchen.
- [ ] план mañana tea naïve ladder.
- [ ] clock план ποίημα rain quince.
'),
(305, '# Entry 213

coat план straße mañana Kitchen garden план river letter mañana.

#ideas/later #home/kitchen
- [ ] naïve Übung straße çay letter rain Kitchen mañana naïve naïve.

See [[Entry 391]] and [[entry 93|another one]].

```
int answer = 42;
```
'),
(306, '# Entry 214

東京 mañana 서울 clock çay rain çay mañana 東京 river.

#日本/料理 #home
- [ ] план ποίημα rain Kitchen.
- [x] garden straße naïve clock.
'),
(307, '# Entry 215

letter çay çay clock ποίημα ποίημα Übung rain Übung Ærø 서울.
- [ ] window letter letter.
- [x] garden ποίημα straße Kitchen window Übung.
- [ ] garden coat mañana naïve letter 東京 서울.
'),
(308, '# Entry 216

clock clock çay window tea.

#Work/Übung #work/übung
- [x] clock mañana straße çay tea garden bread garden ποίημα window window.
'),
(309, '# Entry 217

東京 naïve 서울.

#café #ideas
- [ ] window 東京 ποίημα bread coat letter bread Ærø Kitchen.
- [x] Übung Übung window ladder план naïve ladder clock.

![](<picture 31 ä.png>)'),
(311, '# Entry 218

bread Kitchen letter.

#ideas #two words#

See [[Entry 111]] and [[entry 271|another one]].

```
int answer = 42;
```
'),
(312, '# Entry 219

mañana çay 東京 ποίημα river garden rain çay naïve Übung.

#two words# #ideas/later
- [x] 서울 서울 letter coat.
- [x] bread çay clock ποίημα Ærø ποίημα tea план.
- [x] clock letter quince Ærø ladder quince 東京 straße mañana.

See [[Entry 245]] and [[entry 395|another one]].
'),
(313, '# Entry 220

çay ladder 서울 ladder river coat rain ladder.

#ideas #reise/norge
- [x] garden quince bread clock tea.
- [ ] garden Übung mañana river coat.
- [x] план 東京 Kitchen quince naïve ladder 서울 letter coat Kitchen mañana.
'),
(314, '# Entry 221

ladder garden river Übung.

#Work/Übung #日本/料理
'),
(315, '# Entry 222

tea naïve letter window Kitchen mañana coat bread Übung bread.

#two words# #work
'),
(316, '# Entry 223

clock mañana rain ladder clock bread window 東京.

#reise/norge #home/kitchen

```
int answer = 42;
```

    indented 東京 river Übung ποίημα ladder rain river naïve Kitchen.
'),
(317, '# Entry 224

ladder bread Ærø ladder coat coat window mañana tea garden.

#ideas #ideas

![](picture%2032%20%C3%A4.png) [paper](<paper''s "32".pdf>)'),
(318, '# Entry 225

Übung straße Ærø naïve quince Übung river bread mañana ποίημα coat.

#Work/Übung #home/kitchen
- [x] quince Kitchen ποίημα letter.
- [ ] план straße window 東京 rain Übung coat coat.
- [ ] bread straße quince naïve quince mañana Übung ποίημα 서울 tea.

See [[Entry 369]] and [[entry 363|another one]].
'),
(319, '# Entry 226

план letter mañana river quince план clock clock.

#ideas #Work/Übung
- [ ] mañana window straße Kitchen river mañana coat.
- [x] Ærø letter mañana çay Ærø quince rain çay çay.
'),
(321, '# Entry 227

garden window letter.

    indented 東京 Übung garden bread coat bread.
'),
(322, '# Entry 228

clock window bread Übung letter tea rain mañana план.
- [ ] window clock garden çay ladder clock letter clock ποίημα naïve.
- [x] quince river 東京 letter.
'),
(323, '# Entry 229

clock window straße clock ποίημα план naïve 東京.
- [x] quince quince ποίημα ladder Ærø 서울 Kitchen rain çay mañana ladder.
- [x] garden naïve garden river bread naïve.
- [x] clock Ærø clock naïve.

```
int answer = 42;
```
'),
(324, '# Entry 230

ποίημα garden mañana Kitchen план quince mañana coat tea 東京.

#home/kitchen #work
- [ ] naïve straße çay coat ποίημα.
- [x] coat bread garden window quince rain план Ærø ποίημα straße.
'),
(325, '# Entry 231

garden ποίημα straße window naïve план mañana.

#work #two words#

See [[Entry 240]] and [[entry 334|another one]].

![](<picture 33 ä.png>) [paper](<paper''s "33".pdf>)'),
(326, '# Entry 232

clock letter bread.

#work #two words#
- [x] ποίημα naïve straße ladder rain ladder çay ποίημα план 東京 clock.
- [x] Kitchen Kitchen ladder çay 東京 çay bread Kitchen.
- [ ] window ladder 서울 straße bread straße window clock.

```
int answer = 42;
```
'),
(327, '# Entry 233

rain çay mañana quince garden rain naïve coat.
- [ ] coat Kitchen garden ladder ποίημα 서울.
- [x] rain naïve mañana план.
- [ ] mañana 東京 ποίημα Kitchen.
'),
(328, '# Entry 234

rain 東京 rain straße Übung mañana çay.

#work #home/kitchen
- [ ] Kitchen Übung tea tea naïve 서울 coat ποίημα clock.
- [x] naïve rain tea clock Ærø straße river clock clock.

See [[Entry 161]] and [[entry 365|another one]].
'),
(329, '# Entry 235

letter naïve straße coat bread.

#home/kitchen/shelf #home/kitchen/shelf
'),
(331, '# Entry 236

garden naïve Übung naïve quince Übung Ærø çay straße план.

See [[Entry 10]] and [[entry 392|another one]].
'),
(332, '# Entry 237

bread Übung Kitchen Ærø план river Ærø naïve план letter.
- [ ] план quince tea river 東京 garden ladder.
- [x] ladder 東京 tea план garden coat quince.
'),
(333, '# Entry 238

coat 東京 letter ποίημα çay tea 東京 東京.
- [ ] bread letter план çay Übung Kitchen.
- [ ] straße bread ποίημα Kitchen Ærø garden ποίημα window 서울 Ærø bread.
- [x] 東京 river letter clock clock coat 東京.

![](picture%2034%20%C3%A4.png)'),
(334, '# Entry 239

план mañana garden 서울 Ærø coat çay Ærø.
- [x] coat çay Übung 東京 Übung quince.
- [x] Ærø план Ærø naïve clock çay coat naïve straße.

See [[Entry 245]] and [[entry 356|another one]].

```
int answer = 42;
```

    indented rain план window 東京 東京 東京 coat naïve.
'),
(335, '# Entry 240

rain tea naïve ποίημα garden straße quince.

#ideas #work/übung
- [x] mañana river straße Kitchen 서울 garden river Kitchen Übung naïve letter.
- [ ] Übung 東京 straße coat ladder 서울 coat bread 東京 ladder mañana.
'),
(336, '# Entry 241

çay 서울 ladder rain clock naïve.
'),
(337, '# Entry 242

quince clock 東京 Ærø Ærø rain straße.

#home/kitchen/shelf #work
'),
(338, '# Entry 243

план ladder river naïve clock straße quince river letter quince.

#work #ideas/later
- [ ] Ærø tea clock ποίημα letter çay mañana.
- [ ] ποίημα Ærø 東京 tea.
- [x] çay window 서울 Übung 東京.

```
int answer = 42;
```
'),
(339, '# Entry 244

çay tea clock window river ποίημα.
- [x] tea quince Ærø Übung coat window Übung mañana план straße.
- [x] quince план план coat river.
'),
(341, '# Entry 245

clock 東京 서울 naïve.

#work #ideas/later
- [x] ποίημα 東京 çay Kitchen Kitchen bread çay coat bread.
- [x] bread ladder naïve.
- [x] Ærø 東京 rain quince 東京 rain naïve 東京 Kitchen river quince.

![](<picture 35 ä.png>)'),
(342, '# Entry 246

garden 서울 tea ladder план naïve ladder Kitchen çay.
- [ ] window coat window çay tea.
- [x] letter rain 東京 mañana river.
- [ ] river 서울 tea garden Übung mañana Übung Kitchen straße Übung.

See [[Entry 371]] and [[entry 13|another one]].
'),
(343, '# Entry 247

tea 서울 mañana Ærø 서울 서울 bread Ærø river 東京.
- [x] ποίημα 東京 Ærø letter Ærø 서울 river.
- [x] coat Kitchen river quince Ærø.
- [ ] letter letter Übung Ærø quince.
'),
(344, '# Entry 248

naïve clock bread mañana letter 東京 東京 Kitchen mañana.

#ideas/later #home/kitchen
'),
(345, '# Entry 249

rain rain coat bread clock план план quince.

#work #work
- [x] Ærø tea window rain ποίημα coat rain ladder Ærø.
- [ ] ποίημα straße garden letter mañana bread 서울 straße bread straße.
'),
(346, '# Entry 250

coat ladder tea tea tea Kitchen river mañana.

#日本/料理 #ideas
- [ ] tea straße window.

```
int answer = 42;
```
'),
(347, '# Entry 251

river coat Übung Kitchen bread Kitchen.
- [x] ποίημα straße letter.
'),
(348, '# Entry 252

garden rain 東京 ladder 東京 çay.

#reise/norge #reise/norge
- [ ] window bread letter ladder Ærø quince window clock.
- [x] Übung letter window план tea clock window.
- [ ] Kitchen mañana çay çay ποίημα bread naïve garden ladder tea план.

See [[Entry 174]] and [[entry 242|another one]].

    indented naïve Übung Übung tea quince 서울 naïve.

![](picture%2036%20%C3%A4.png) [paper](<paper''s "36".pdf>)'),
(349, '# Entry 253

план rain bread ladder letter mañana coat bread clock straße.

#home/kitchen/shelf #work
- [ ] ladder mañana letter coat 서울 Kitchen coat.
- [x] window rain window tea naïve naïve 東京 東京 bread coat.
- [ ] letter river mañana.
'),
(351, '# Entry 254

Übung 서울 план план clock garden garden.
- [x] clock river bread çay bread garden coat Ærø coat coat.

See [[Entry 333]] and [[entry 141|another one]].
'),
(352, '# Entry 255

ladder ladder Ærø rain.

#home/kitchen/shelf #ideas/later
- [ ] naïve Kitchen quince clock rain Ærø Übung 東京 coat naïve tea.
- [x] tea çay Kitchen window mañana.
- [x] letter river rain garden 서울 clock çay quince window.

```
int answer = 42;
```
'),
(353, '# Entry 256

river clock window window rain tea letter çay bread Kitchen.

#ideas #two words#
- [x] letter 서울 tea ladder bread Kitchen Kitchen.
- [x] mañana Übung river tea window ladder bread clock bread bread 東京.

See [[Entry 339]] and [[entry 250|another one]].

    indented ποίημα river bread garden tea.
'),
(354, '# Entry 257

ladder Ærø straße clock.

#home/kitchen/shelf #home/kitchen/shelf
- [x] Kitchen ποίημα quince garden Kitchen letter.
- [x] Kitchen naïve Übung letter rain straße rain straße.
- [x] straße window Ærø 서울 window Übung coat naïve quince letter mañana.
'),
(355, '# Entry 258

план ποίημα Kitchen rain garden ladder 東京 window çay window clock.

#home #home
- [ ] ladder letter ladder план bread garden Ærø straße план tea.

```
int answer = 42;
```
'),
(356, '# Entry 259

letter window ποίημα.

See [[Entry 366]] and [[entry 218|another one]].

![](<picture 37 ä.png>) [paper](<paper''s "37".pdf>)'),
(357, '# Entry 260

서울 coat ladder mañana ποίημα bread tea Ærø mañana Ærø.

#日本/料理 #ideas
- [x] ποίημα bread bread garden ladder.
- [ ] window 東京 ποίημα garden naïve 東京 東京 서울 Ærø.

See [[Entry 162]] and [[entry 81|another one]].
'),
(358, '# Entry 261

tea ποίημα clock mañana window.

#home/kitchen #café
- [ ] 東京 bread 서울 coat ποίημα Übung naïve quince naïve coat 서울.
- [x] garden garden clock 서울 서울 tea bread.
- [ ] mañana tea clock план naïve ladder garden Kitchen.
'),
(359, '# Entry 262

Übung rain garden river bread window ladder 서울.

#日本/料理 #Work/Übung
- [ ] coat çay river naïve letter 東京 東京 ladder quince.

```
int answer = 42;
```
'),
(361, '# Entry 263

window çay bread bread Kitchen rain.
- [ ] rain mañana straße garden 東京 bread Ærø çay rain.
- [ ] window Ærø план план tea Ærø.
- [ ] çay quince quince mañana tea tea naïve 東京.
'),
(362, '# Entry 264

quince clock coat rain straße çay.

#ideas #home/kitchen

```
int answer = 42;
```

    indented quince clock 서울 Übung garden Ærø ladder tea.
'),
(363, '# Entry 265

naïve çay tea window çay çay çay ποίημα coat.

#Work/Übung #home
- [x] Kitchen quince tea 東京 window river 서울 naïve garden tea.

See [[Entry 180]] and [[entry 330|another one]].
'),
(364, '# Entry 266

ποίημα план план tea garden.
- [ ] ladder ladder mañana ποίημα Übung mañana Kitchen bread rain.
- [x] bread window план rain çay.

See [[Entry 283]] and [[entry 74|another one]].

```
int answer = 42;
```

![](picture%2038%20%C3%A4.png)'),
(365, '# Entry 267

Ærø Übung 東京 window clock.
- [ ] çay план clock ladder letter.
'),
(366, '# Entry 268

letter ποίημα Übung quince mañana tea bread Ærø tea Übung Übung.

#home/kitchen #home/kitchen/shelf
- [x] rain Übung rain garden clock straße план 서울 çay 東京 clock.
- [x] coat naïve Ærø.
- [ ] Ærø coat mañana ladder.

```
int answer = 42;
```
'),
(367, '# Entry 269

quince Kitchen 서울 ladder Übung.

#café #reise/norge
'),
(368, '# Entry 270

서울 rain letter.

#ideas #日本/料理
- [ ] план çay Kitchen Ærø clock план garden quince.
- [x] clock letter mañana river Ærø.

See [[Entry 348]] and [[entry 376|another one]].

    indented quince river çay.
'),
(369, '# Entry 271

straße quince window Kitchen clock çay.

#work #Work/Übung
- [ ] coat ποίημα 東京 naïve coat.
- [ ] coat rain quince Kitchen 서울 garden ladder river garden ladder.

See [[Entry 288]] and [[entry 148|another one]].
'),
(371, '# Entry 272

naïve ladder bread Übung 서울 bread.

#ideas/later #日本/料理
- [x] tea garden Kitchen window coat 서울 Ærø Ærø çay mañana bread.
- [x] letter letter план.
'),
(372, '# Entry 273

garden план river rain ladder.

See [[Entry 0]] and [[entry 221|another one]].

```
int answer = 42;
```

![](<picture 39 ä.png>)'),
(373, '# Entry 274

river ladder ποίημα letter ladder çay план bread ποίημα river ποίημα.

#work/übung #work/übung
- [ ] coat mañana letter rain clock Ærø garden Übung.
- [x] naïve coat letter.
- [x] tea clock ladder.

See [[Entry 385]] and [[entry 88|another one]].
'),
(374, '# Entry 275

план straße ladder bread 東京.

#home/kitchen/shelf #ideas
- [ ] Übung window mañana план letter window clock.
- [x] window ποίημα window ποίημα.
'),
(375, '# Entry 276

letter quince Kitchen clock quince coat çay 서울 서울.
- [ ] garden coat clock план straße tea river план.
- [x] план план clock ladder Ærø.
- [x] 東京 東京 garden 서울 ladder coat naïve coat.

See [[Entry 88]] and [[entry 339|another one]].

    indented river 東京 çay garden clock 서울.
'),
(376, '# Entry 277

letter straße window clock çay tea bread quince naïve river.

#日本/料理 #home
- [x] 東京 clock clock Übung naïve mañana clock.
- [ ] letter garden çay ποίημα çay straße straße mañana naïve naïve 서울.
- [x] clock window 東京 clock ποίημα letter coat Übung window.
'),
(377, '# Entry 278

river çay bread clock Übung clock ποίημα Kitchen ποίημα план.

#ideas/later #ideas/later
- [ ] garden mañana coat.
- [ ] river tea ποίημα window clock.
'),
(378, '# Entry 279

tea garden window window window план ποίημα coat letter window mañana.
- [x] Ærø Übung naïve clock quince quince ποίημα tea garden çay.
'),
(379, '# Entry 280

naïve bread ladder Übung çay river.

#ideas #home/kitchen
'),
(381, '# Entry 281

東京 bread quince çay clock ladder.

#日本/料理 #two words#
- [x] Ærø 서울 план 東京 план naïve Ærø 서울 straße план naïve.
- [x] 서울 ladder Übung straße 서울 çay quince 東京 tea straße river.

```
int answer = 42;
```
'),
(382, '# Entry 282

план 東京 ποίημα clock план.
- [x] straße ladder quince bread Kitchen ποίημα tea.
- [ ] straße letter clock 서울.
'),
(383, '# Entry 283

Übung letter river bread river.
- [x] mañana 서울 bread çay coat.
- [x] clock quince garden.
- [x] straße ποίημα straße naïve Ærø 서울 rain letter.
'),
(384, '# Entry 284

план window çay straße coat Übung.

#reise/norge #ideas
- [ ] river 서울 tea garden letter.
- [x] 서울 river ποίημα çay çay coat.
- [x] clock naïve çay Ærø Kitchen 東京 letter план straße tea.

See [[Entry 329]] and [[entry 55|another one]].
'),
(385, '# Entry 285

서울 rain mañana garden clock план 東京 ladder bread Kitchen.

See [[Entry 85]] and [[entry 18|another one]].
'),
(386, '# Entry 286

tea straße window tea mañana 東京 Übung bread garden Kitchen naïve.

#日本/料理 #reise/norge
'),
(387, '# Entry 287

quince çay Übung tea ladder 서울 Ærø bread.

#work #ideas/later
- [x] Kitchen Kitchen naïve 東京 ladder.
- [ ] Ærø Ærø window straße ladder.
- [ ] straße straße Kitchen.
'),
(388, '# Entry 288

straße Kitchen window çay bread river tea naïve garden letter.

#ideas #home
- [ ] river Kitchen Übung clock Übung.
- [x] ποίημα letter clock naïve rain.
- [ ] 서울 rain çay Ærø garden Übung Ærø window letter.

    indented straße Kitchen 서울 quince river.
'),
(389, '# Entry 289

window garden ποίημα river letter mañana straße план.
- [x] Übung straße 서울 ποίημα çay river clock.
- [ ] naïve план 東京.
- [ ] 서울 çay naïve.

    indented quince çay ladder quince tea clock garden план.
'),
(391, '# Entry 290

naïve garden clock çay план straße mañana river.
- [ ] garden river 東京 bread garden river 서울.
- [ ] coat clock ποίημα window ποίημα Übung ladder Ærø.
- [ ] quince план garden mañana çay clock naïve quince window Kitchen ποίημα.

    indented rain Ærø straße coat ladder.
'),
(392, '# Entry 291

東京 план window tea 서울 çay 東京 mañana naïve Kitchen letter.
- [x] river 東京 ladder Ærø bread quince river clock letter.
- [x] rain rain letter naïve.
- [ ] tea ποίημα Kitchen clock Kitchen bread 서울 東京 mañana Ærø.

```
int answer = 42;
```
'),
(393, '# Entry 292

서울 coat tea 서울 river straße ladder.
- [ ] straße tea 東京 план ladder 서울 Ærø.
- [x] quince Kitchen Kitchen letter план.
'),
(394, '# Entry 293

ποίημα 東京 rain Kitchen letter naïve bread.

#Work/Übung #home
- [ ] Kitchen Kitchen bread tea coat план çay Übung Übung.
- [x] Kitchen mañana garden çay letter window.
'),
(395, '# Entry 294

ποίημα tea river.

```
int answer = 42;
```
'),
(396, '# Entry 295

tea rain clock coat bread.

See [[Entry 375]] and [[entry 65|another one]].
'),
(397, '# Entry 296

window Ærø river quince Übung ποίημα Kitchen Übung ladder river 서울.

#日本/料理 #café
- [ ] letter 서울 çay Übung clock Kitchen 서울 tea.
- [x] план river coat Ærø.

See [[Entry 94]] and [[entry 271|another one]].
'),
(398, '# Entry 297

Kitchen coat ladder river Ærø ποίημα Ærø river план.
- [ ] quince Übung çay rain naïve rain window план ποίημα 東京.
'),
(399, '# Entry 298

straße straße river план window window 東京 coat.

#work #home/kitchen
- [x] 서울 東京 letter Übung rain garden.
'),
(401, '# Entry 299

garden tea window 東京 東京 ποίημα.

#reise/norge #home/kitchen/shelf
- [x] straße tea window garden.
- [ ] ladder garden mañana.
- [x] letter tea ladder.
'),
(402, '# Entry 300

ποίημα 서울 план quince план 東京 план.
- [ ] 東京 window quince Ærø straße Ærø tea Übung quince quince.

See [[Entry 62]] and [[entry 357|another one]].

```
int answer = 42;
```
'),
(403, '# Entry 301

mañana план tea coat straße ποίημα план tea 東京 ποίημα план.

#ideas #home
- [ ] mañana naïve river ladder Kitchen letter river clock rain clock letter.
- [x] Kitchen bread quince 東京 ladder letter.
- [x] rain ποίημα 東京 quince çay.
'),
(404, '# Entry 302

clock naïve tea.

#home/kitchen/shelf #日本/料理
- [ ] çay 서울 window mañana.
- [x] Ærø straße план rain çay river clock window 서울 window.
- [ ] rain Ærø garden quince план.
'),
(405, '# Entry 303

letter 서울 quince Kitchen tea straße rain 東京 tea.

#ideas #日本/料理
- [ ] straße mañana window 서울 quince river clock naïve.
- [ ] river garden bread quince 東京 rain.
'),
(406, '# Entry 304

bread ποίημα clock план straße rain bread garden ladder garden ποίημα.

#ideas/later #ideas/later
- [ ] çay 서울 çay garden clock.
- [x] Übung Kitchen Übung ladder Übung clock.
- [x] 서울 bread план ποίημα.
'),
(407, '# Entry 305

window bread river 서울.

#日本/料理 #Work/Übung
- [x] letter rain rain garden coat çay 東京 straße план.

```
int answer = 42;
```
'),
(408, '# Entry 306

bread clock Kitchen rain naïve tea tea bread план.

#Work/Übung #日本/料理

```
int answer = 42;
```
'),
(409, '# Entry 307

bread clock letter ποίημα план tea.
- [x] river 東京 naïve ποίημα ποίημα rain letter bread letter ladder Übung.
- [x] clock план letter план çay.
- [x] coat tea ποίημα rain 東京 clock straße Ærø window çay straße.
'),
(411, '# Entry 308

Kitchen bread river 東京.

#ideas #work
- [ ] Kitchen bread rain river mañana Kitchen river quince Ærø.
- [ ] river bread quince bread river çay çay bread tea Kitchen.
- [x] coat ποίημα garden window ποίημα 東京 çay letter план.

See [[Entry 222]] and [[entry 193|another one]].
'),
(412, '# Entry 309

river Übung clock clock.

#日本/料理 #home/kitchen/shelf

See [[Entry 358]] and [[entry 187|another one]].

    indented mañana coat ladder rain river Ærø clock straße Ærø window Übung.
'),
(413, '# Entry 310

straße Übung straße 서울 ladder garden mañana bread straße.

#ideas #Work/Übung
- [x] 東京 Übung çay naïve Übung rain coat river Übung naïve ladder.
- [x] coat ποίημα ποίημα straße 東京.
- [x] coat Kitchen quince bread.
'),
(414, '# Entry 311

tea Ærø 東京 rain Übung quince Kitchen Ærø quince letter garden.

#ideas #Work/Übung
- [ ] 東京 garden tea straße план Ærø letter çay план Kitchen ποίημα.
'),
(415, '# Entry 312

garden quince naïve ladder bread coat mañana 서울 Kitchen garden.
- [x] Übung bread Kitchen quince mañana план 서울.
- [x] план 東京 Kitchen.
- [ ] çay 東京 東京 ladder coat план clock letter Kitchen coat clock.
'),
(416, '# Entry 313

garden ladder coat 東京 Übung Übung план Kitchen rain tea Ærø.
- [x] letter ladder mañana.

See [[Entry 218]] and [[entry 178|another one]].
'),
(417, '# Entry 314

tea rain Ærø window Kitchen mañana coat çay план bread naïve.

#ideas #café
- [x] ladder garden план garden quince ποίημα Übung coat 東京 bread Ærø.

```
int answer = 42;
```
'),
(418, '# Entry 315

window Übung Ærø bread coat Übung garden.
- [x] план ποίημα coat coat.
- [ ] straße Ærø 東京 tea straße ladder Kitchen.
- [x] план naïve bread mañana план план clock.
'),
(419, '# Entry 316

çay ποίημα çay 서울 letter.
'),
(421, '# Entry 317

план garden coat rain ladder clock clock.
- [ ] bread window clock river clock.

```
int answer = 42;
```
'),
(422, '# Entry 318

quince letter Übung rain straße.

#two words# #reise/norge
- [ ] river naïve 서울 ladder tea coat çay rain rain naïve bread.

```
int answer = 42;
```
'),
(423, '# Entry 319

garden window quince garden bread window.
'),
(424, '# Groceries

milk and [[Groceries]] again'),
(425, '# AC/DC

is a title with a slash'),
(426, '# x|y [z]

is one to escape'),
(427, '# Éclair

of other letters'),
(428, '![](only-an-image.png)'),
(429, ''),
(431, '# By identifier

[[BBAEC7E1-EF64-4A40-AFCD-4E2E8123F952]] and [[C10630BF-790B-4651-BA5E-65631B6B9E91|the empty one]]'),
(432, '# Links

🎉 [[Groceries]] [[ groceries |again]] ![[GROCERIES]] [[AC/DC]] [[x\|y \[z\]]]

[[eclair]] [[ÉCLAIR]] [[nobody has this title]] [[ ]] [[|alias]] \[[Groceries]] `[[Groceries]]`
[[1]](https://example.com) [see [[Groceries]]](x) [[́]]

    [[Groceries]] in code
'),
(433, '# To [[Groceries]]

a link in a title'),
(434, '# Chain one

[[Chain two]]'),
(435, '# Chain two

[[Chain three]] [[Chain one]]'),
(436, '# Twin

the first, in the trash'),
(437, '# twin

the third'),
(438, '# TWIN

the second: links lead here'),
(439, '# Twin

made at no known time, in the trash'),
(441, '# Thrown away

and nothing took its place'),
(442, '# Same moment

of two the one with the lower key'),
(443, '# Same moment

of two the one with the higher key'),
(444, '# To twins

[[Twin]] [[thrown away]] [[Same moment]] [[Dateless]]'),
(445, '# Dateless

what has no date was made first'),
(446, '# Dateless

made later than none');
INSERT INTO "OVNoteTag" ("pk", "rowVersion", "uniqueIdentifier", "name", "modificationDate", "version", "isRoot", "pinned", "pinnedDate", "sorting", "sortingDate", "sortingDirection", "sortingDirectionDate", "name_folded") VALUES
(1, 2, '01803CD1-08D8-4D73-AFEA-79C81E4783C6', 'it''s', 1700000000002000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'it''s'),
(2, 3, '4C2B141E-2467-472D-8439-F0FCD2600D0A', 'windows', 1700000000013000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'windows'),
(3, 4, '8E8DD474-2B86-4DB8-BB8F-18FB89C2C735', '🎉', 1700000000022000, 1, 1, 0, NULL, 3, 1700000001329000, 0, NULL, '🎉'),
(4, 5, '45A465F8-1528-4DDB-B171-2FCDA8CE2D57', 'party', 1700000000023000, 1, 1, 1, 1700000001330000, 0, NULL, 0, NULL, 'party'),
(5, 1, '909CEA2D-C374-42CE-AE80-9D3F4B23B5DD', 'party/🥳', 1700000000024000, 1, 0, 0, NULL, 0, NULL, 0, 1700000001331000, 'party/🥳'),
(6, 2, '2C0F9EDB-8EF3-43FB-9AEB-5687E335AF6E', 'עברית', 1700000000028000, 1, 1, 0, NULL, 1, 1700000001332000, 0, NULL, 'עברית'),
(7, 3, '4F3F7157-A02A-4AC2-98E2-9E914440BCF4', 'عربي', 1700000000031000, 1, 1, 0, NULL, 0, NULL, 0, NULL, NULL),
(8, 4, 'CE91A7A3-D19C-4626-A9CA-CD4699E6F030', 'عربي/يومي', 1700000000032000, 1, 0, 1, 1700000001333000, 0, NULL, 0, NULL, 'عربي/يومي'),
(9, 5, '7B44970E-BF15-4E7C-83B8-58D0AE36CF47', 'café', 1700000001196000, 1, 1, 0, NULL, 4, 1700000001334000, 0, NULL, 'café'),
(11, 2, '5B70FD45-E2A1-4B9A-B8C5-4934591B2B01', '𝔱𝔞𝔤', 1700000000040000, 1, 1, 0, NULL, 0, NULL, 1, 1700000001335000, '𝔱𝔞𝔤'),
(12, 3, 'E653EFB0-3DC6-4DA4-9796-C27ADCF9EA5F', 'İzmir', 1700000000043000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'i̇zmir'),
(13, 4, '3589A9B9-586D-46DD-B4CC-526A8B692470', 'ıspanak', 1700000000044000, 1, 1, 1, 1700000001336000, 2, 1700000001337000, 0, NULL, 'ıspanak'),
(14, 5, '953A7F90-DC25-49ED-A8EA-0B9606608E64', '한국', 1700000000051000, 1, 1, 0, NULL, 0, NULL, 0, NULL, NULL),
(15, 1, '8AA02E3F-7BDD-42A4-9DF8-271C361DB767', 'home', 1700000001312000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'home'),
(16, 2, '66B3601E-9605-4B5F-A996-CC746D16E692', 'work', 1700000001320000, 1, 1, 0, NULL, 0, 1700000001338000, 0, 1700000001339000, 'work'),
(17, 3, 'DD1D1234-7A1F-41E2-9379-DDADEBB3560F', 'ideas', 1700000001294000, 1, 1, 1, 1700000001340000, 0, NULL, 0, NULL, 'ideas'),
(18, 4, '9BA14844-27A0-4F61-8721-BE0E4DAB3D55', 'a', 1700000000111000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'a'),
(19, 5, '240CFAB5-761A-42E5-BA7F-E30CE96319E5', 'a/b', 1700000000112000, 1, 0, 0, NULL, 3, 1700000001341000, 0, NULL, 'a/b'),
(21, 2, '81ECA96B-3737-408F-9C28-3C46B1B2A0DA', 'a/b/c', 1700000000113000, 1, 0, 0, NULL, 0, NULL, 0, NULL, NULL),
(22, 3, '143426C1-D0B9-4459-93DE-40FF2A2F9561', 'closed tag', 1700000000114000, 1, 1, 1, 1700000001342000, 0, NULL, 1, 1700000001343000, 'closed tag'),
(23, 4, '015926FA-8C70-42CD-8DD8-ECDAD327627F', 'in-parentheses', 1700000000115000, 1, 1, 0, NULL, 1, 1700000001344000, 0, NULL, 'in-parentheses'),
(24, 5, '0F25E6E0-A462-4FF3-AE01-209EE5077032', 'home/kitchen', 1700000001313000, 1, 0, 0, NULL, 0, NULL, 0, NULL, 'home/kitchen'),
(25, 1, 'C7FD9512-AEAC-4B89-844D-FF3F975FF3BB', 'first', 1700000000119000, 1, 1, 0, NULL, 0, NULL, 0, NULL, 'first'),
(26, 2, 'E57D40D2-9F81-44CE-A944-3619D39BFA38', 'home/kitchen/shelf', 1700000001314000, 1, 0, 1, 1700000001345000, 4, 1700000001346000, 0, NULL, 'home/kitchen/shelf'),
(27, 3, '056FAA2E-15B3-4549-AA8D-92972DDF7D34', '1st', 1700000000123000, 1, 1, 0, NULL, 0, NULL, 0, 1700000001347000, '1st'),
(28, 4, 'A1B68EB9-6FBD-48F1-88C1-1602D6014833', '1st/2nd', 1700000000124000, 1, 0, 0, NULL, 0, NULL, 0, NULL, NULL),
(29, 5, 'C770D74D-3E30-402A-A703-B92B35ABCA62', '1st/2nd/3rd', 1700000000125000, 1, 0, 0, NULL, 2, 1700000001348000, 0, NULL, '1st/2nd/3rd'),
(31, 2, 'F5614BBB-424A-4B05-9AC3-1F0B83B6810D', '1st/2nd/3rd/4th', 1700000000126000, 1, 0, 1, 1700000001349000, 0, NULL, 0, NULL, '1st/2nd/3rd/4th'),
(32, 3, '3B7CB8D1-8826-4446-8C49-05CF54BB1FDA', '1st/2nd/3rd/4th/5th', 1700000000127000, 1, 0, 0, NULL, 0, NULL, 0, NULL, '1st/2nd/3rd/4th/5th'),
(33, 4, '07EB42A0-AECB-422C-8025-AFC9DA540FC1', '1st/2nd/3rd/4th/5th/6th', 1700000000128000, 1, 0, 0, NULL, 0, 1700000001350000, 1, 1700000001351000, '1st/2nd/3rd/4th/5th/6th'),
(34, 5, '34C5C259-1C13-4B11-85ED-CF8AFE9D91D1', '1st/2nd/3rd/4th/5th/6th/7th', 1700000000129000, 1, 0, 0, NULL, 0, NULL, 0, NULL, '1st/2nd/3rd/4th/5th/6th/7th'),
(35, 1, 'AE0711F2-563D-4007-9DB7-1C74E32BE237', '1st/2nd/3rd/4th/5th/6th/7th/8th', 1700000000130000, 1, 0, 1, 1700000001352000, 0, NULL, 0, NULL, NULL),
(36, 2, 'EF21C779-88E7-4321-A77E-63BD07FD3BA9', 'two words', 1700000001240000, 1, 1, 0, NULL, 3, 1700000001353000, 0, NULL, 'two words'),
(37, 3, '00939355-1B61-48EE-AA95-5EEF92C3FA23', '日本', 1700000001321000, 1, 1, 0, NULL, 0, NULL, 0, NULL, '日本'),
(38, 4, '5F1D6716-B8F7-4A2A-881F-8C5287D7883D', '日本/料理', 1700000001322000, 1, 0, 0, NULL, 0, NULL, 0, 1700000001354000, '日本/料理'),
(39, 5, '791AF462-ED2F-47E8-A3F4-90D7EFDACE57', 'reise', 1700000001315000, 1, 1, 1, 1700000001355000, 1, 1700000001356000, 0, NULL, 'reise'),
(41, 2, 'B918B731-3418-4FC3-89AE-9442DE0C9980', 'reise/norge', 1700000001316000, 1, 0, 0, NULL, 0, NULL, 0, NULL, 'reise/norge'),
(42, 3, 'A0323305-2180-491F-A358-BC268B2CAB07', 'work/übung', 1700000001323000, 1, 0, 0, NULL, 0, NULL, 0, NULL, NULL),
(43, 4, '3DC013AC-573D-4578-803F-5ED481ED54EA', 'ideas/later', 1700000001297000, 1, 0, 0, NULL, 4, 1700000001357000, 0, NULL, 'ideas/later');
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
(43, NULL);
INSERT INTO "OVNoteFile" ("pk", "rowVersion", "entity", "uniqueIdentifier", "filename", "normalizedFileExtension", "fileSize", "index", "creationDate", "modificationDate", "insertionDate", "lastEditingDevice", "version", "downloaded", "uploaded", "uploadedDate", "unused", "unusedDate", "permanentlyDeleted", "skipSync", "note", "serverData", "width", "height") VALUES
(1, 2, 'OVNoteImage', '112C554C-6AC7-4457-B4A1-A6664F1D84BB', 'picture 0 ä.png', 'png', 1000.25, 0, NULL, NULL, 1700000001028000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 68, 1, 0, 0),
(2, 3, 'OVNoteGenericFile', '661F4D08-5BF2-4CDD-9751-05C3DDB35D2F', 'paper''s "0".pdf', 'pdf', 0.5, 1, NULL, NULL, 1700000001029000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 1, 68, NULL, NULL, NULL),
(3, 4, 'OVNoteImage', 'D7A89124-AF33-49FB-B2E5-6DCBD6418B79', 'picture 1 ä.png', 'png', 2021.75, 0, NULL, NULL, 1700000001030000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 76, NULL, 16, 9),
(4, 5, 'OVNoteGenericFile', '5A1059F5-C8C2-4F86-8DA6-55849DEC14DC', 'paper''s "1".pdf', 'pdf', 1, 1, NULL, NULL, 1700000001031000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 76, 2, NULL, NULL),
(5, 1, 'OVNoteImage', '68EA363C-6896-4DD3-9DD4-3C27B14EE742', 'picture 2 ä.png', 'png', 9168.25, 0, NULL, NULL, 1700000001032000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 84, NULL, 32, 18),
(6, 2, 'OVNoteGenericFile', '19C1BB5D-E778-42CF-BCB1-47B6C52A0F72', 'paper''s "2".pdf', 'pdf', 2.5, 0, NULL, NULL, 1700000001033000, NULL, 1, 0, 0, NULL, 1, 1700000001034000, 0, 0, 84, NULL, NULL, NULL),
(7, 3, 'OVNoteImage', '24A62A27-B332-450A-8CB8-C7CADDE2765A', 'picture 3 ä.png', 'png', 28567.75, 0, NULL, NULL, 1700000001035000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 92, 3, 48, 27),
(8, 4, 'OVNoteImage', '7A005319-7772-456A-84A8-81868E9421C9', 'picture 4 ä.png', 'png', 66344, 0, NULL, NULL, 1700000001036000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 99, NULL, 64, 36),
(9, 5, 'OVNoteGenericFile', 'C2196AAF-E181-45E5-BD3D-137B0993AB8C', 'paper''s "4".pdf', 'pdf', 4.25, 1, NULL, NULL, 1700000001037000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 99, NULL, NULL, NULL),
(11, 2, 'OVNoteImage', 'CE4E25CA-F707-46BF-A159-D2D7E85B7D80', 'picture 5 ä.png', 'png', 128625.75, 0, NULL, NULL, 1700000001038000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 107, 4, 80, 45),
(12, 3, 'OVNoteGenericFile', '0F479E65-F9D1-47B4-BD2F-B5B0BE7B8BF9', 'paper''s "5".pdf', 'pdf', 5, 1, NULL, NULL, 1700000001039000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 107, NULL, NULL, NULL),
(13, 4, 'OVNoteImage', '0A35FDB2-7DC6-443F-B111-ACE51CDF5831', 'picture 6 ä.png', 'png', 221536.25, 0, NULL, NULL, 1700000001040000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 115, NULL, 96, 54),
(14, 5, 'OVNoteGenericFile', '77AAEEA5-1657-4513-8427-971A7E0A93AA', 'paper''s "6".pdf', 'pdf', 6.5, 0, NULL, NULL, 1700000001041000, NULL, 1, 0, 0, NULL, 1, 1700000001042000, 0, 0, 115, 5, NULL, NULL),
(15, 1, 'OVNoteImage', '76BFD9A1-55BF-4858-99FD-54B5F922BBAC', 'picture 7 ä.png', 'png', 351203.75, 0, NULL, NULL, 1700000001043000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 123, NULL, 112, 63),
(16, 2, 'OVNoteImage', 'F815DD7D-D93A-4B87-86C6-31738C835102', 'picture 8 ä.png', 'png', 523752, 0, NULL, NULL, 1700000001044000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 131, NULL, 128, 72),
(17, 3, 'OVNoteGenericFile', '29AA12E9-A33F-4AF7-BBA0-DDB91BF04CD8', 'paper''s "8".pdf', 'pdf', 8.25, 1, NULL, NULL, 1700000001045000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 131, 6, NULL, NULL),
(18, 4, 'OVNoteImage', '878557AA-40CD-4976-AD83-C5CC60629AB5', 'picture 9 ä.png', 'png', 745309.5, 0, NULL, NULL, 1700000001046000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 138, NULL, 144, 81),
(19, 5, 'OVNoteGenericFile', '78CD879E-C0C6-4716-B4AF-405BE0E1CAA3', 'paper''s "9".pdf', 'pdf', 9.75, 1, NULL, NULL, 1700000001047000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 138, NULL, NULL, NULL),
(21, 2, 'OVNoteImage', '89A589F1-AFFE-4DFF-AE98-3E09DAC536B0', 'picture 10 ä.png', 'png', 1022000.25, 0, NULL, NULL, 1700000001048000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 146, 7, 160, 90),
(22, 3, 'OVNoteGenericFile', '36D42501-3060-4A9A-97E6-C3442C49DBAB', 'paper''s "10".pdf', 'pdf', 10.5, 0, NULL, NULL, 1700000001049000, NULL, 1, 0, 0, NULL, 1, 1700000001050000, 0, 0, 146, NULL, NULL, NULL),
(23, 4, 'OVNoteImage', '52B9A903-7FC8-41B2-8069-9C13229AC8E5', 'picture 11 ä.png', 'png', 1359951.75, 0, NULL, NULL, 1700000001051000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 154, NULL, 176, 99),
(24, 5, 'OVNoteImage', 'D61997BD-83B5-45D3-9E68-E89D101610BB', 'picture 12 ä.png', 'png', 1765288, 0, NULL, NULL, 1700000001052000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 162, 8, 192, 108),
(25, 1, 'OVNoteGenericFile', '202A1D10-68AB-4FE7-9165-C404944C9E5E', 'paper''s "12".pdf', 'pdf', 12.25, 1, NULL, NULL, 1700000001053000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 162, NULL, NULL, NULL),
(26, 2, 'OVNoteImage', '42C7E502-E016-4936-9C1D-F492F6E1A33C', 'picture 13 ä.png', 'png', 2244137.5, 0, NULL, NULL, 1700000001054000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 169, NULL, 208, 117),
(27, 3, 'OVNoteGenericFile', '4D9944B3-2999-4436-BA6D-5BEFEEF2E25F', 'paper''s "13".pdf', 'pdf', 13.75, 1, NULL, NULL, 1700000001055000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 169, 9, NULL, NULL),
(28, 4, 'OVNoteImage', '4F61AF0A-3EBC-42BF-8685-57B0C8CEB729', 'picture 14 ä.png', 'png', 2802624, 0, NULL, NULL, 1700000001056000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 177, NULL, 224, 126),
(29, 5, 'OVNoteGenericFile', 'E96961D8-7A7F-4DE7-A500-5E80F6CB8F32', 'paper''s "14".pdf', 'pdf', 14.25, 0, NULL, NULL, 1700000001057000, NULL, 1, 0, 0, NULL, 1, 1700000001058000, 0, 1, 177, NULL, NULL, NULL),
(31, 2, 'OVNoteImage', '85C08353-4C31-4EBF-9349-E3DAFBB9AFC3', 'picture 15 ä.png', 'png', 3446875.75, 0, NULL, NULL, 1700000001059000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 185, 11, 240, 135),
(32, 3, 'OVNoteImage', 'C10A7480-5E87-480B-B26E-8F1F3DB78C6B', 'picture 16 ä.png', 'png', 4183016, 0, NULL, NULL, 1700000001060000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 193, NULL, 256, 144),
(33, 4, 'OVNoteGenericFile', 'D13DFDF8-78AF-47E7-BDA3-24DF61C017F5', 'paper''s "16".pdf', 'pdf', 16.25, 1, NULL, NULL, 1700000001061000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 193, NULL, NULL, NULL),
(34, 5, 'OVNoteImage', 'DC0041E0-D9FE-4A4D-9857-6B3004B803FF', 'picture 17 ä.png', 'png', 5017173.5, 0, NULL, NULL, 1700000001062000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 201, 12, 272, 153),
(35, 1, 'OVNoteGenericFile', '6649C870-470D-4B3E-AA50-F29F2EC6681D', 'paper''s "17".pdf', 'pdf', 17.75, 1, NULL, NULL, 1700000001063000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 201, NULL, NULL, NULL),
(36, 2, 'OVNoteImage', '91AF7DA5-0CF4-4DBC-A0B9-20D59689652B', 'picture 18 ä.png', 'png', 5955472, 0, NULL, NULL, 1700000001064000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 208, NULL, 288, 162),
(37, 3, 'OVNoteGenericFile', 'E345EDF6-6126-44A5-A5C9-05A14A11088F', 'paper''s "18".pdf', 'pdf', 18.25, 0, NULL, NULL, 1700000001065000, NULL, 1, 0, 0, NULL, 1, 1700000001067000, 0, 0, 208, 13, NULL, NULL),
(38, 4, 'OVNoteImage', '773E4335-0919-4522-9714-3162B4E17727', 'picture 19 ä.png', 'png', 7004039.5, 0, NULL, NULL, 1700000001068000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 216, NULL, 304, 171),
(39, 5, 'OVNoteImage', '8261B162-7914-46C5-9FF7-FF83FF5F9F8B', 'picture 20 ä.png', 'png', 8169000.75, 0, NULL, NULL, 1700000001069000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 224, NULL, 320, 180),
(41, 2, 'OVNoteGenericFile', '956A2901-BA55-4216-AA88-146EC6B6338E', 'paper''s "20".pdf', 'pdf', 20.25, 1, NULL, NULL, 1700000001070000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 224, 14, NULL, NULL),
(42, 3, 'OVNoteImage', 'CC023ECB-9B07-4915-ABFD-13CF49DD2626', 'picture 21 ä.png', 'png', 9456481.5, 0, NULL, NULL, 1700000001071000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 232, NULL, 336, 189),
(43, 4, 'OVNoteGenericFile', '2B89F081-67D7-4591-8EE5-B9F45D9329AA', 'paper''s "21".pdf', 'pdf', 21.75, 1, NULL, NULL, 1700000001072000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 1, 232, NULL, NULL, NULL),
(44, 5, 'OVNoteImage', 'CE5FA9D0-1627-4707-9C9F-83DE4C740EE7', 'picture 22 ä.png', 'png', 10872608, 0, NULL, NULL, 1700000001073000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 239, 15, 352, 198),
(45, 1, 'OVNoteGenericFile', '4337C4DD-3322-49FA-9B11-1AC0B235D395', 'paper''s "22".pdf', 'pdf', 22.25, 0, NULL, NULL, 1700000001074000, NULL, 1, 0, 0, NULL, 1, 1700000001075000, 0, 0, 239, NULL, NULL, NULL),
(46, 2, 'OVNoteImage', '08890C90-C919-4FF8-8B2F-93CA19AA2B61', 'picture 23 ä.png', 'png', 12423507.5, 0, NULL, NULL, 1700000001076000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 247, NULL, 368, 207),
(47, 3, 'OVNoteImage', 'D0ECB6D2-7BA6-4113-8684-E9EBDDB983DA', 'picture 24 ä.png', 'png', 14115304.75, 0, NULL, NULL, 1700000001077000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 255, 16, 384, 216),
(48, 4, 'OVNoteGenericFile', 'DA89855C-7AB8-42E3-865B-9D34ACF2D684', 'paper''s "24".pdf', 'pdf', 24, 1, NULL, NULL, 1700000001078000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 255, NULL, NULL, NULL),
(49, 5, 'OVNoteImage', 'A48A56EA-5375-4C96-B936-3154637183F9', 'picture 25 ä.png', 'png', 15954125.25, 0, NULL, NULL, 1700000001079000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 263, NULL, 400, 225),
(51, 2, 'OVNoteGenericFile', '357F1A20-800F-4EB5-9C18-528F3A7119C2', 'paper''s "25".pdf', 'pdf', 25.75, 1, NULL, NULL, 1700000001080000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 263, 17, NULL, NULL),
(52, 3, 'OVNoteImage', '003CFD76-D543-41F5-B1CF-4992A8DB4D67', 'picture 26 ä.png', 'png', 17946096, 0, NULL, NULL, 1700000001081000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 271, NULL, 416, 234),
(53, 4, 'OVNoteGenericFile', '5E3D50ED-70F2-4D53-8301-ACA5BE7C3E95', 'paper''s "26".pdf', 'pdf', 26.25, 0, NULL, NULL, 1700000001082000, NULL, 1, 0, 0, NULL, 1, 1700000001083000, 0, 0, 271, NULL, NULL, NULL),
(54, 5, 'OVNoteImage', '6F1860BB-07F4-49E0-8E1B-9FE07A642DA5', 'picture 27 ä.png', 'png', 20097343.5, 0, NULL, NULL, 1700000001084000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 278, 18, 432, 243),
(55, 1, 'OVNoteImage', '3AAA9C5F-14FC-4F16-A701-EA008C9B85B6', 'picture 28 ä.png', 'png', 22413992.75, 0, NULL, NULL, 1700000001085000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 286, NULL, 448, 252),
(56, 2, 'OVNoteGenericFile', 'C1998785-7E3A-4293-833D-1D61593D315F', 'paper''s "28".pdf', 'pdf', 28, 1, NULL, NULL, 1700000001086000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 1, 286, NULL, NULL, NULL),
(57, 3, 'OVNoteImage', 'B3C80BC9-AAE2-484E-BE68-6152BB42E921', 'picture 29 ä.png', 'png', 24902169.25, 0, NULL, NULL, 1700000001087000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 294, 19, 464, 261),
(58, 4, 'OVNoteGenericFile', '0665ECA6-0A71-40A0-8D55-F06B268F5A01', 'paper''s "29".pdf', 'pdf', 29.5, 1, NULL, NULL, 1700000001088000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 294, NULL, NULL, NULL),
(59, 5, 'OVNoteImage', 'EB772F6C-DF3E-4423-81D4-4B2538BD9A0D', 'picture 30 ä.png', 'png', 27568000.75, 0, NULL, NULL, 1700000001089000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 302, NULL, 480, 270),
(61, 2, 'OVNoteGenericFile', '7DCE1A9E-2DE7-4647-BBDF-50EE8E57267F', 'paper''s "30".pdf', 'pdf', 30.25, 0, NULL, NULL, 1700000001090000, NULL, 1, 0, 0, NULL, 1, 1700000001091000, 0, 0, 302, 21, NULL, NULL),
(62, 3, 'OVNoteImage', 'F06C38F6-590F-4B1F-B6BA-A8A2459E820D', 'picture 31 ä.png', 'png', 30417611.5, 0, NULL, NULL, 1700000001092000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 309, NULL, 496, 279),
(63, 4, 'OVNoteImage', '58E99020-905A-4BBF-9D5D-49221CB7E647', 'picture 32 ä.png', 'png', 33457128.75, 0, NULL, NULL, 1700000001093000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 317, NULL, 512, 288),
(64, 5, 'OVNoteGenericFile', '2D317677-A9F0-486E-ACDF-047839F78B36', 'paper''s "32".pdf', 'pdf', 32, 1, NULL, NULL, 1700000001094000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 317, 22, NULL, NULL),
(65, 1, 'OVNoteImage', '69972DFD-3C7A-46A5-87AB-6507932BE4F8', 'picture 33 ä.png', 'png', 36692677.25, 0, NULL, NULL, 1700000001095000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 325, NULL, 528, 297),
(66, 2, 'OVNoteGenericFile', '729DBD42-4094-4923-BEEE-F365CA8160CD', 'paper''s "33".pdf', 'pdf', 33.5, 1, NULL, NULL, 1700000001096000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 325, NULL, NULL, NULL),
(67, 3, 'OVNoteImage', '1D2A87C1-CEAA-43E5-9798-1A8EC92E8EA3', 'picture 34 ä.png', 'png', 40130384.75, 0, NULL, NULL, 1700000001098000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 333, 23, 544, 306),
(68, 4, 'OVNoteGenericFile', '1542E6CE-7B98-44EE-97FD-89DEEC6FE4AE', 'paper''s "34".pdf', 'pdf', 34, 0, NULL, NULL, 1700000001099000, NULL, 1, 0, 0, NULL, 1, 1700000001100000, 0, 0, 333, NULL, NULL, NULL),
(69, 5, 'OVNoteImage', 'FD60D900-97BF-4707-9C40-E566B07C8ECC', 'picture 35 ä.png', 'png', 43776375.25, 0, NULL, NULL, 1700000001101000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 341, NULL, 560, 315),
(71, 2, 'OVNoteImage', 'C69DB164-4822-4360-985D-93FC725A804E', 'picture 36 ä.png', 'png', 47636776.75, 0, NULL, NULL, 1700000001102000, NULL, 1, 1, 1, NULL, 0, NULL, 0, 0, 348, 24, 576, 324),
(72, 3, 'OVNoteGenericFile', 'D4396342-9CF4-4285-BFC6-04781D66C4A5', 'paper''s "36".pdf', 'pdf', 36, 1, NULL, NULL, 1700000001103000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 348, NULL, NULL, NULL),
(73, 4, 'OVNoteImage', 'E8E2ACB5-7131-4D1A-8946-DF2B848B300A', 'picture 37 ä.png', 'png', 51717713.25, 0, NULL, NULL, 1700000001104000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 356, NULL, 592, 333),
(74, 5, 'OVNoteGenericFile', 'B2DDDF75-8134-4FF1-BAE5-C37A60B83947', 'paper''s "37".pdf', 'pdf', 37.5, 1, NULL, NULL, 1700000001105000, NULL, 1, 0, 0, NULL, 0, NULL, 0, 0, 356, 25, NULL, NULL),
(75, 1, 'OVNoteImage', '2223103E-DF71-4560-81C1-C25445CEC0AA', 'picture 38 ä.png', 'png', 56025312.75, 0, NULL, NULL, 1700000001107000, NULL, 1, 0, 1, NULL, 0, NULL, 0, 0, 364, NULL, 608, 342),
(76, 2, 'OVNoteGenericFile', '1C007D6D-5EB7-481A-837E-6C12738BD5FA', 'paper''s "38".pdf', 'pdf', 38, 0, NULL, NULL, 1700000001108000, NULL, 1, 0, 0, NULL, 1, 1700000001109000, 0, 0, 364, NULL, NULL, NULL),
(77, 3, 'OVNoteImage', '5F718A41-5A0C-4E07-BC3B-FA7C33CC16EE', 'picture 39 ä.png', 'png', 60565699.25, 0, NULL, NULL, 1700000001110000, NULL, 1, 1, 0, NULL, 0, NULL, 0, 0, 372, 26, 624, 351);
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
(6, 2),
(11, 3),
(11, 4),
(11, 5),
(12, 6),
(13, 7),
(13, 8),
(14, 9),
(16, 11),
(17, 12),
(17, 13),
(21, 14),
(33, 15),
(34, 15),
(34, 16),
(34, 17),
(52, 15),
(52, 17),
(52, 18),
(52, 19),
(52, 21),
(52, 22),
(52, 23),
(52, 24),
(53, 15),
(53, 24),
(53, 25),
(53, 26),
(54, 27),
(54, 28),
(54, 29),
(54, 31),
(54, 32),
(54, 33),
(54, 34),
(54, 35),
(65, 4),
(65, 5),
(69, 17),
(69, 36),
(71, 9),
(71, 37),
(71, 38),
(72, 39),
(72, 41),
(75, 15),
(75, 36),
(79, 15),
(79, 16),
(79, 42),
(81, 37),
(81, 38),
(81, 39),
(81, 41),
(82, 17),
(82, 36),
(82, 43),
(83, 9),
(83, 16),
(84, 15),
(84, 24),
(84, 37),
(84, 38),
(85, 9),
(85, 15),
(86, 15),
(86, 24),
(87, 15),
(87, 16),
(87, 24),
(87, 26),
(87, 42),
(89, 9),
(89, 37),
(89, 38),
(91, 15),
(91, 16),
(91, 24),
(91, 26),
(91, 42),
(92, 17),
(92, 36),
(93, 15),
(93, 24),
(94, 15),
(94, 24),
(94, 26),
(95, 16),
(95, 17),
(95, 42),
(96, 16),
(96, 36),
(97, 16),
(97, 17),
(99, 15),
(99, 16),
(99, 42),
(101, 15),
(101, 24),
(101, 26),
(101, 39),
(101, 41),
(102, 15),
(102, 24),
(102, 26),
(105, 15),
(105, 24),
(105, 26),
(105, 37),
(105, 38),
(106, 9),
(106, 17),
(108, 17),
(108, 39),
(108, 41),
(109, 17),
(109, 36),
(111, 15),
(111, 17),
(111, 24),
(111, 26),
(111, 43),
(112, 16),
(112, 17),
(112, 42),
(113, 17),
(113, 36),
(113, 43),
(114, 15),
(114, 17),
(116, 16),
(116, 42),
(117, 16),
(117, 39),
(117, 41),
(117, 42),
(118, 15),
(119, 9),
(119, 16),
(119, 42),
(121, 16),
(121, 17),
(121, 42),
(121, 43),
(123, 15),
(123, 24),
(123, 26),
(123, 39),
(123, 41),
(124, 15),
(124, 17),
(124, 24),
(125, 15),
(125, 17),
(125, 24),
(125, 26),
(126, 16),
(126, 37),
(126, 38),
(126, 42),
(127, 16),
(127, 37),
(127, 38),
(127, 42),
(133, 15),
(133, 16),
(133, 24),
(133, 26),
(133, 42),
(134, 15),
(134, 37),
(134, 38),
(135, 36),
(135, 37),
(135, 38),
(137, 16),
(137, 39),
(137, 41),
(139, 15),
(139, 17),
(139, 43),
(141, 15),
(141, 24),
(141, 26),
(142, 15),
(142, 16),
(142, 24),
(142, 26),
(142, 42),
(143, 16),
(143, 36),
(143, 42),
(145, 39),
(145, 41),
(146, 16),
(146, 42),
(148, 15),
(148, 16),
(148, 24),
(148, 42),
(151, 15),
(151, 24),
(151, 26),
(152, 16),
(152, 42),
(153, 17),
(153, 37),
(153, 38),
(153, 43),
(155, 16),
(155, 39),
(155, 41),
(156, 9),
(156, 16),
(156, 42),
(159, 9),
(159, 15),
(159, 24),
(163, 17),
(163, 37),
(163, 38),
(163, 43),
(164, 16),
(164, 42),
(168, 15),
(168, 16),
(169, 9),
(169, 15),
(171, 15),
(171, 17),
(171, 24),
(172, 16),
(172, 17),
(172, 42),
(175, 15),
(175, 24),
(175, 26),
(175, 39),
(175, 41),
(178, 15),
(181, 9),
(181, 39),
(181, 41),
(182, 9),
(182, 37),
(182, 38),
(185, 9),
(185, 39),
(185, 41),
(186, 9),
(186, 15),
(187, 17),
(187, 43),
(188, 15),
(188, 24),
(188, 37),
(188, 38),
(189, 9),
(189, 17),
(189, 43),
(192, 16),
(192, 17),
(192, 42),
(193, 37),
(193, 38),
(193, 39),
(193, 41),
(196, 15),
(196, 16),
(196, 24),
(198, 16),
(198, 36),
(198, 42),
(199, 17),
(199, 36),
(201, 9),
(201, 15),
(201, 24),
(201, 26),
(202, 15),
(202, 17),
(203, 15),
(203, 37),
(203, 38),
(206, 9),
(206, 17),
(206, 43),
(209, 15),
(209, 37),
(209, 38),
(211, 15),
(211, 16),
(211, 42),
(212, 15),
(212, 24),
(212, 26),
(212, 39),
(212, 41),
(213, 17),
(213, 36),
(214, 15),
(214, 24),
(214, 26),
(215, 16),
(215, 17),
(215, 42),
(215, 43),
(216, 9),
(216, 16),
(216, 42),
(217, 15),
(217, 16),
(217, 42),
(218, 17),
(218, 37),
(218, 38),
(218, 43),
(219, 16),
(219, 17),
(219, 42),
(219, 43),
(221, 15),
(221, 17),
(221, 24),
(221, 26),
(222, 16),
(222, 36),
(223, 9),
(223, 15),
(223, 24),
(223, 26),
(224, 15),
(224, 16),
(224, 24),
(226, 15),
(226, 24),
(226, 26),
(226, 36),
(228, 16),
(228, 36),
(228, 42),
(231, 16),
(231, 17),
(231, 42),
(231, 43),
(232, 15),
(232, 16),
(232, 24),
(232, 26),
(232, 42),
(233, 15),
(233, 16),
(233, 24),
(235, 16),
(235, 17),
(235, 42),
(236, 9),
(236, 15),
(237, 17),
(237, 36),
(237, 43),
(241, 15),
(241, 24),
(241, 26),
(241, 37),
(241, 38),
(245, 9),
(245, 16),
(245, 42),
(248, 36),
(248, 37),
(248, 38),
(251, 15),
(251, 16),
(251, 24),
(251, 26),
(251, 42),
(252, 9),
(252, 15),
(253, 15),
(253, 16),
(253, 24),
(253, 42),
(257, 16),
(257, 17),
(257, 42),
(257, 43),
(258, 9),
(258, 39),
(258, 41),
(259, 16),
(259, 39),
(259, 41),
(261, 36),
(261, 39),
(261, 41),
(262, 15),
(262, 24),
(262, 26),
(262, 37),
(262, 38),
(263, 15),
(263, 37),
(263, 38),
(266, 9),
(266, 15),
(266, 24),
(267, 9),
(267, 16),
(267, 42),
(268, 15),
(268, 24),
(268, 26),
(268, 37),
(268, 38),
(271, 15),
(271, 24),
(271, 26),
(271, 39),
(271, 41),
(275, 15),
(275, 24),
(275, 36),
(276, 16),
(276, 36),
(276, 42),
(277, 16),
(277, 39),
(277, 41),
(277, 42),
(278, 16),
(278, 42),
(279, 36),
(279, 37),
(279, 38),
(282, 16),
(282, 36),
(282, 42),
(284, 15),
(284, 24),
(284, 26),
(284, 39),
(284, 41),
(285, 15),
(287, 9),
(287, 15),
(288, 15),
(288, 24),
(288, 26),
(289, 15),
(289, 24),
(289, 36),
(291, 16),
(291, 17),
(291, 42),
(291, 43),
(292, 16),
(292, 37),
(292, 38),
(292, 42),
(294, 16),
(294, 17),
(294, 42),
(295, 17),
(295, 39),
(295, 41),
(296, 9),
(296, 16),
(301, 15),
(301, 24),
(301, 26),
(301, 36),
(302, 16),
(302, 42),
(303, 9),
(303, 16),
(303, 42),
(305, 15),
(305, 17),
(305, 24),
(305, 43),
(306, 15),
(306, 37),
(306, 38),
(308, 16),
(308, 42),
(309, 9),
(309, 17),
(311, 17),
(311, 36),
(312, 17),
(312, 36),
(312, 43),
(313, 17),
(313, 39),
(313, 41),
(314, 16),
(314, 37),
(314, 38),
(314, 42),
(315, 16),
(315, 36),
(316, 15),
(316, 24),
(316, 39),
(316, 41),
(317, 17),
(318, 15),
(318, 16),
(318, 24),
(318, 42),
(319, 16),
(319, 17),
(319, 42),
(324, 15),
(324, 16),
(324, 24),
(325, 16),
(325, 36),
(326, 16),
(326, 36),
(328, 15),
(328, 16),
(328, 24),
(329, 15),
(329, 24),
(329, 26),
(335, 16),
(335, 17),
(335, 42),
(337, 15),
(337, 16),
(337, 24),
(337, 26),
(338, 16),
(338, 17),
(338, 43),
(341, 16),
(341, 17),
(341, 43),
(344, 15),
(344, 17),
(344, 24),
(344, 43),
(345, 16),
(346, 17),
(346, 37),
(346, 38),
(348, 39),
(348, 41),
(349, 15),
(349, 16),
(349, 24),
(349, 26),
(352, 15),
(352, 17),
(352, 24),
(352, 26),
(352, 43),
(353, 17),
(353, 36),
(354, 15),
(354, 24),
(354, 26),
(355, 15),
(357, 17),
(357, 37),
(357, 38),
(358, 9),
(358, 15),
(358, 24),
(359, 16),
(359, 37),
(359, 38),
(359, 42),
(362, 15),
(362, 17),
(362, 24),
(363, 15),
(363, 16),
(363, 42),
(366, 15),
(366, 24),
(366, 26),
(367, 9),
(367, 39),
(367, 41),
(368, 17),
(368, 37),
(368, 38),
(369, 16),
(369, 42),
(371, 17),
(371, 37),
(371, 38),
(371, 43),
(373, 16),
(373, 42),
(374, 15),
(374, 17),
(374, 24),
(374, 26),
(376, 15),
(376, 37),
(376, 38),
(377, 17),
(377, 43),
(379, 15),
(379, 17),
(379, 24),
(381, 36),
(381, 37),
(381, 38),
(384, 17),
(384, 39),
(384, 41),
(386, 37),
(386, 38),
(386, 39),
(386, 41),
(387, 16),
(387, 17),
(387, 43),
(388, 15),
(388, 17),
(394, 15),
(394, 16),
(394, 42),
(397, 9),
(397, 37),
(397, 38),
(399, 15),
(399, 16),
(399, 24),
(401, 15),
(401, 24),
(401, 26),
(401, 39),
(401, 41),
(403, 15),
(403, 17),
(404, 15),
(404, 24),
(404, 26),
(404, 37),
(404, 38),
(405, 17),
(405, 37),
(405, 38),
(406, 17),
(406, 43),
(407, 16),
(407, 37),
(407, 38),
(407, 42),
(408, 16),
(408, 37),
(408, 38),
(408, 42),
(411, 16),
(411, 17),
(412, 15),
(412, 24),
(412, 26),
(412, 37),
(412, 38),
(413, 16),
(413, 17),
(413, 42),
(414, 16),
(414, 17),
(414, 42),
(417, 9),
(417, 17),
(422, 36),
(422, 39),
(422, 41);

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
