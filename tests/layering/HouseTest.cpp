#include "tests/layering/LayerRules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace layering {
namespace {

using testing::IsEmpty;

// Checks the project's own sources against the layering rules.
class House : public testing::Test {
protected:
    const SourceTree tree = readSourceTree(VANTREL_SOURCE_DIR);
};

TEST_F(House, hasSources) {
    EXPECT_GT(tree.size(), 30U);
}

TEST_F(House, everyFolderIncludesOnlyWhatItBuildsOn) {
    EXPECT_THAT(includesAcrossLayers(tree), IsEmpty());
}

TEST_F(House, platformHeadersStayInTheFoldersThatOwnThem) {
    EXPECT_THAT(platformHeadersOutside(tree), IsEmpty());
}

TEST_F(House, includesAreToldFromTheRoot) {
    EXPECT_THAT(relativeIncludes(tree), IsEmpty());
}

TEST_F(House, everySourceIncludesItsOwnHeaderFirst) {
    EXPECT_THAT(ownHeaderNotFirst(tree), IsEmpty());
}

TEST_F(House, sourcesAreShort) {
    EXPECT_THAT(longSources(tree), IsEmpty());
}

TEST_F(House, sourcesAreNotNamedByAPattern) {
    EXPECT_THAT(globbedSources(tree), IsEmpty());
}

TEST_F(House, everySourceIsListed) {
    EXPECT_THAT(unlistedSources(tree), IsEmpty());
}

} // namespace
} // namespace layering
