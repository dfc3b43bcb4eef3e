#include "tests/layering/LayerRules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace layering {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(LayerRules, aFolderMayIncludeItselfAndAllThatItBuildsOn) {
    EXPECT_THAT(includesAcrossLayers({{"src/client/A.cpp", "#include \"client/A.h\"\n#include \"wire/Message.h\"\n"},
                                      {"hosts/ctl/A.cpp", "#include \"shell/Shell.h\"\n#include \"hosts/ctl/A.h\"\n"},
                                      {"server/A.cpp", "#include \"protocol/Catalogue.h\"\n#include <string>\n"}}),
                IsEmpty());
}

TEST(LayerRules, aFolderMayNotIncludeWhatStandsAboveIt) {
    EXPECT_THAT(includesAcrossLayers({{"src/wire/A.h", "#pragma once\n#include \"client/A.h\"\n"}}),
                ElementsAre("src/wire/A.h: may not include client/A.h"));
}

TEST(LayerRules, theServerMayNotIncludeTheClient) {
    EXPECT_THAT(includesAcrossLayers({{"server/A.cpp", "#include \"client/CQVXAdminClass.h\"\n"}}),
                ElementsAre("server/A.cpp: may not include client/CQVXAdminClass.h"));
}

TEST(LayerRules, theRootOfTheServerPutsItsRoomsTogether) {
    EXPECT_THAT(includesAcrossLayers({{"server/Commands.cpp", "#include \"server/rules/RuleHandlers.h\"\n"
                                                              "#include \"server/store/Query.h\"\n"},
                                      {"server/rules/A.cpp", "#include \"server/store/Query.h\"\n"}}),
                IsEmpty());
}

TEST(LayerRules, aRoomOfTheServerKnowsNeitherItsRootNorWhatBuildsOnIt) {
    EXPECT_THAT(includesAcrossLayers({{"server/store/A.cpp", "#include \"server/Schema.h\"\n"},
                                      {"server/commands/A.h", "#include \"server/estate/RegionTable.h\"\n"},
                                      {"server/estate/A.cpp", "#include \"server/drivers/DriverModelTable.h\"\n"},
                                      {"server/net/A.cpp", "#include \"server/store/Query.h\"\n"}}),
                ElementsAre("server/store/A.cpp: may not include server/Schema.h",
                            "server/commands/A.h: may not include server/estate/RegionTable.h",
                            "server/estate/A.cpp: may not include server/drivers/DriverModelTable.h",
                            "server/net/A.cpp: may not include server/store/Query.h"));
}

TEST(LayerRules, aDomainOfTheServerKnowsAnotherOnlyWhereTheHouseSaysSo) {
    EXPECT_THAT(includesAcrossLayers(
                    {{"server/drivers/A.cpp", "#include \"server/configurations/QueueConfigurationTable.h\"\n"},
                     {"server/configurations/A.cpp", "#include \"server/drivers/DriverTable.h\"\n"},
                     {"server/alarms/A.cpp", "#include \"server/rules/NamedTable.h\"\n"}}),
                ElementsAre("server/configurations/A.cpp: may not include server/drivers/DriverTable.h",
                            "server/alarms/A.cpp: may not include server/rules/NamedTable.h"));
}

TEST(LayerRules, theShellMayNotKnowABranchOfTheTree) {
    EXPECT_THAT(includesAcrossLayers({{"src/shell/A.cpp", "  #  include \"printers/PrinterNode.h\"\n"}}),
                ElementsAre("src/shell/A.cpp: may not include printers/PrinterNode.h"));
}

TEST(LayerRules, nothingIncludesAHostOrATest) {
    EXPECT_THAT(includesAcrossLayers({{"src/shell/A.cpp", "#include \"hosts/ctl/A.h\"\n"},
                                      {"hosts/desktop/A.cpp", "#include \"hosts/ctl/A.h\"\n"},
                                      {"src/wire/A.cpp", "#include \"tests/support/A.h\"\n"}}),
                ElementsAre("src/shell/A.cpp: may not include hosts/ctl/A.h",
                            "hosts/desktop/A.cpp: may not include hosts/ctl/A.h",
                            "src/wire/A.cpp: may not include tests/support/A.h"));
}

TEST(LayerRules, aFolderThatTheHouseDoesNotKnowIsNamed) {
    EXPECT_THAT(includesAcrossLayers({{"src/misc/A.cpp", "\n"}, {"server/misc/A.h", "#pragma once\n"}}),
                ElementsAre("src/misc/A.cpp: the folder src/misc is not listed in the layering",
                            "server/misc/A.h: the folder server/misc is not listed in the layering"));
}

TEST(LayerRules, anIncludeOfAnUnknownFolderIsNamed) {
    EXPECT_THAT(includesAcrossLayers({{"src/wire/A.cpp", "#include \"boost/uuid/uuid.hpp\"\n"}}),
                ElementsAre("src/wire/A.cpp: may not include boost/uuid/uuid.hpp"));
}

TEST(LayerRules, testsMayIncludeEverything) {
    EXPECT_THAT(includesAcrossLayers({{"tests/wire/A.cpp", "#include \"shell/Shell.h\"\n"}}), IsEmpty());
}

TEST(LayerRules, qtBelongsToTheDesktop) {
    EXPECT_THAT(platformHeadersOutside({{"hosts/desktop/A.cpp", "#include <QMainWindow>\n"},
                                        {"src/shell/A.h", "#include <QtWidgets/QWidget>\n#include <QString>\n"}}),
                ElementsAre("src/shell/A.h: QtWidgets/QWidget belongs to other folders",
                            "src/shell/A.h: QString belongs to other folders"));
}

TEST(LayerRules, windowsHeadersBelongToTheModuleAndToTheWindowsHalves) {
    EXPECT_THAT(platformHeadersOutside({{"hosts/mmc/A.h", "#include <windows.h>\n"},
                                        {"src/wire/SocketWinsock.cpp", "#include <winsock2.h>\n"},
                                        {"src/wire/Socket.h", "#include <WinSock2.h>\n"},
                                        {"src/client/A.cpp", "#include <windows.h>\n"}}),
                ElementsAre("src/wire/Socket.h: WinSock2.h belongs to other folders",
                            "src/client/A.cpp: windows.h belongs to other folders"));
}

TEST(LayerRules, ourOwnWindowsHeaderCountsAsOneOfThem) {
    EXPECT_THAT(platformHeadersOutside({{"src/diagnostics/DbgHelp.h", "#include <windows.h>\n"},
                                        {"src/diagnostics/DbgHelp.cpp", "#include \"diagnostics/DbgHelp.h\"\n"},
                                        {"src/console/A.cpp", "#include \"diagnostics/DbgHelp.h\"\n"}}),
                ElementsAre("src/console/A.cpp: diagnostics/DbgHelp.h belongs to other folders"));
}

TEST(LayerRules, sqliteBelongsToTheStore) {
    EXPECT_THAT(platformHeadersOutside({{"server/store/Store.cpp", "#include <sqlite3.h>\n"},
                                        {"tests/server/store/StoreTest.cpp", "#include <SQLiteCpp/SQLiteCpp.h>\n"},
                                        {"server/estate/A.cpp", "#include <sqlite3.h>\n"},
                                        {"tests/server/rules/A.cpp", "#include <sqlite3.h>\n"},
                                        {"src/client/A.cpp", "#include <SQLiteCpp/Database.h>\n"}}),
                ElementsAre("server/estate/A.cpp: sqlite3.h belongs to other folders",
                            "tests/server/rules/A.cpp: sqlite3.h belongs to other folders",
                            "src/client/A.cpp: SQLiteCpp/Database.h belongs to other folders"));
}

TEST(LayerRules, theWritingOfLogsBelongsToTheLog) {
    EXPECT_THAT(platformHeadersOutside({{"server/log/Log.cpp", "#include <spdlog/spdlog.h>\n"},
                                        {"server/net/A.cpp", "#include <spdlog/spdlog.h>\n"}}),
                ElementsAre("server/net/A.cpp: spdlog/spdlog.h belongs to other folders"));
}

TEST(LayerRules, anIncludeIsToldFromTheRoot) {
    EXPECT_THAT(
        relativeIncludes({{"src/wire/A.cpp", "#include \"wire/A.h\"\n#include \"../client/A.h\"\n"},
                          {"src/wire/B.cpp", "#include \"B.h\"\n#include <vector>\n"}}),
        ElementsAre(HasSubstr("src/wire/A.cpp: includes ../client/A.h"), HasSubstr("src/wire/B.cpp: includes B.h")));
}

TEST(LayerRules, aSourceOfFiveHundredLinesIsTheLongest) {
    const std::string longest(500, '\n');
    EXPECT_THAT(longSources({{"tests/wire/A.cpp", longest}, {"tests/wire/B.cpp", longest + "\n"}}),
                ElementsAre("tests/wire/B.cpp: 501 lines"));
}

TEST(LayerRules, halfOfTheSourcesAreShort) {
    const std::string shortText(10, '\n');
    const std::string text(150, '\n');
    EXPECT_THAT(longSources({{"src/wire/A.cpp", shortText}, {"src/wire/B.cpp", shortText}, {"src/wire/C.cpp", text}}),
                IsEmpty());
    EXPECT_THAT(longSources({{"src/wire/A.cpp", shortText}, {"src/wire/B.cpp", text}, {"src/wire/C.cpp", text}}),
                ElementsAre("The median source has 150 lines"));
}

TEST(LayerRules, sourcesAreNotNamedByAPattern) {
    EXPECT_THAT(globbedSources({{"src/wire/CMakeLists.txt", "file(GLOB sources *.cpp)\n"},
                                {"src/client/CMakeLists.txt", "file(GLOB_RECURSE sources *.cpp)\n"},
                                {"src/shell/CMakeLists.txt", "aux_source_directory(. sources)\n"},
                                {"src/console/CMakeLists.txt", "# no GLOB here\nadd_library(console A.cpp)\n"}}),
                ElementsAre(HasSubstr("src/wire/CMakeLists.txt"), HasSubstr("src/client/CMakeLists.txt"),
                            HasSubstr("src/shell/CMakeLists.txt")));
}

TEST(LayerRules, everySourceAndHeaderIsListed) {
    EXPECT_THAT(unlistedSources({{"src/wire/CMakeLists.txt", "vantrel_library(wire SOURCES Message.cpp\n"
                                                             "                HEADERS Message.h posix/Socket.h)\n"},
                                 {"src/wire/Message.cpp", ""},
                                 {"src/wire/Message.h", ""},
                                 {"src/wire/posix/Socket.h", ""},
                                 {"src/wire/posix/Socket.cpp", ""},
                                 {"src/wire/age.h", ""}}),
                ElementsAre("src/wire/posix/Socket.cpp: not named in src/wire/CMakeLists.txt",
                            "src/wire/age.h: not named in src/wire/CMakeLists.txt"));
}

TEST(LayerRules, aSourceWithoutAListAboveItIsNamed) {
    EXPECT_THAT(unlistedSources({{"CMakeLists.txt", "A.cpp"}, {"src/wire/A.cpp", ""}}),
                ElementsAre("src/wire/A.cpp: no CMakeLists.txt above it"));
}

TEST(SourceTree, aFolderWithoutSourcesIsRefused) {
    EXPECT_THROW(readSourceTree(std::filesystem::path(VANTREL_SOURCE_DIR) / "docs"), std::runtime_error);
}

TEST(LayerRules, aSourceIncludesItsOwnHeaderBeforeAllOthers) {
    EXPECT_THAT(ownHeaderNotFirst({{"src/wire/A.h", ""},
                                   {"src/wire/A.cpp", "#include \"wire/A.h\"\n#include <string>\n"},
                                   {"server/B.h", ""},
                                   {"server/B.cpp", "#include <string>\n#include \"server/B.h\"\n"},
                                   {"tests/C.h", ""},
                                   {"tests/C.cpp", "int c;\n"},
                                   {"server/main.cpp", "#include <string>\n"}}),
                ElementsAre("server/B.cpp: does not include server/B.h first",
                            "tests/C.cpp: does not include tests/C.h first"));
}

} // namespace
} // namespace layering
