#include "snapin/CPrintAbout.h"

#include "snapin/StringTable.h"

#include <gtest/gtest.h>

#include <map>
#include <new>

namespace {

using console::Result;
using snapin::CPrintAbout;
using snapin::ImageHandle;

// The resources of a module, set by the test; an image's handle is made of its number and size.
class Resources final : public snapin::ModuleResources {
public:
    std::map<std::int32_t, wire::WideString> strings;
    std::int32_t missingImage = 0;
    bool outOfMemory = false;

    Resources() {
        for (const std::int32_t id : {105, 106, 107}) {
            strings[id] = snapin::stringTable(id);
        }
    }
    [[nodiscard]] std::optional<wire::WideString> loadString(std::int32_t id) const override {
        if (outOfMemory) {
            throw std::bad_alloc();
        }
        const auto found = strings.find(id);
        return found != strings.end() ? std::optional(found->second) : std::nullopt;
    }
    ImageHandle loadBitmap(std::int32_t id, std::int32_t size) override {
        return id == missingImage ? 0 : id * 100 + size;
    }
    ImageHandle loadIcon(std::int32_t id) override { return id == missingImage ? 0 : id; }
};

TEST(PrintAbout, describesTheProduct) {
    Resources resources;
    const CPrintAbout about(resources);
    wire::WideString text;

    EXPECT_EQ(about.GetSnapinDescription(text), Result::ok);

    EXPECT_EQ(text, u"Vantrel Print Management is a Microsoft Management Console (MMC) snap-in that is used to manage "
                    u"Vantrel print servers and printers.");
}

TEST(PrintAbout, namesProviderAndVersion) {
    Resources resources;
    const CPrintAbout about(resources);
    wire::WideString provider;
    wire::WideString version;

    EXPECT_EQ(about.GetProvider(provider), Result::ok);
    EXPECT_EQ(about.GetSnapinVersion(version), Result::ok);

    EXPECT_EQ(provider, u"Vantrel");
    EXPECT_EQ(version, u"Version 1.0.2");
}

TEST(PrintAbout, failsForATextThatTheModuleDoesNotCarry) {
    Resources resources;
    resources.strings.erase(106);
    const CPrintAbout about(resources);
    wire::WideString text = u"as before";

    EXPECT_EQ(about.GetProvider(text), Result::failed);

    EXPECT_EQ(text, u"as before");
}

TEST(PrintAbout, cutsATextToTheConsolesBuffer) {
    Resources resources;
    resources.strings[106] = wire::WideString(300, u'x');
    const CPrintAbout about(resources);
    wire::WideString text;

    about.GetProvider(text);

    EXPECT_EQ(text.size(), 255U);
}

TEST(PrintAbout, saysWhenMemoryHasRunOut) {
    Resources resources;
    resources.outOfMemory = true;
    const CPrintAbout about(resources);
    wire::WideString text;

    EXPECT_EQ(about.GetSnapinVersion(text), Result::outOfMemory);
}

TEST(PrintAbout, handsOutItsImages) {
    Resources resources;
    const CPrintAbout about(resources);
    ImageHandle icon = 0;
    ImageHandle small = 0;
    ImageHandle smallOpen = 0;
    ImageHandle large = 0;
    std::uint32_t mask = 0;

    EXPECT_EQ(about.GetSnapinImage(icon), Result::ok);
    EXPECT_EQ(about.GetStaticFolderImage(small, smallOpen, large, mask), Result::ok);

    EXPECT_EQ(icon, 201);
    EXPECT_EQ(small, 10116);
    EXPECT_EQ(smallOpen, 20216);
    EXPECT_EQ(large, 10232);
    EXPECT_EQ(mask, 0x808000U);
}

TEST(PrintAbout, failsWhenOneOfTheFolderImagesIsMissing) {
    for (const std::int32_t id : {101, 102, 202}) {
        Resources resources;
        resources.missingImage = id;
        const CPrintAbout about(resources);
        ImageHandle ignored = 0;
        std::uint32_t mask = 0;

        EXPECT_EQ(about.GetStaticFolderImage(ignored, ignored, ignored, mask), Result::failed) << id;
    }
}

TEST(StringTable, hasNothingUnderOtherNumbers) {
    EXPECT_TRUE(snapin::stringTable(104).empty());
    EXPECT_TRUE(snapin::stringTable(0).empty());
}

} // namespace
