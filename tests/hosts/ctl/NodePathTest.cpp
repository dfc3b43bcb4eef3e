#include "hosts/ctl/NodePath.h"
#include "hosts/ctl/Failure.h"

#include <gtest/gtest.h>

namespace {

using ctl::formatPath;
using ctl::NodePath;
using ctl::parsePath;

TEST(NodePath, namesAreJoinedBySlashes) {
    EXPECT_EQ(parsePath("Printers/Berlin"), (NodePath{u"Printers", u"Berlin"}));
}

TEST(NodePath, slashesAtTheEndsDoNotCount) {
    EXPECT_EQ(parsePath("/Printers/"), NodePath{u"Printers"});
    EXPECT_EQ(parsePath("/"), NodePath{});
    EXPECT_EQ(parsePath(""), NodePath{});
}

TEST(NodePath, aSlashAndABackslashInANameAreEscaped) {
    EXPECT_EQ(parsePath(R"(a\/b/c\\d)"), (NodePath{u"a/b", u"c\\d"}));
}

TEST(NodePath, whatIsFormattedIsReadAgain) {
    const NodePath path{u"a/b\\", u"Zürich", u"/"};

    EXPECT_EQ(formatPath(path), "a\\/b\\\\/Z\xC3\xBCrich/\\/");
    EXPECT_EQ(parsePath(formatPath(path)), path);
}

TEST(NodePath, anyOtherBackslashIsAnError) {
    EXPECT_THROW(parsePath(R"(a\b)"), ctl::Failure);
    EXPECT_THROW(parsePath("a\\"), ctl::Failure);
}

TEST(NodePath, anEmptyNameInTheMiddleIsAnError) {
    EXPECT_THROW(parsePath("a//b"), ctl::Failure);
}

} // namespace
