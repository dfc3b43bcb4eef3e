#include "console/RecordList.h"

#include "console/RecordRow.h"
#include "forms/Form.h"
#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace console {
namespace {

using platform::Key;
using testing::ElementsAre;
using testing::IsEmpty;

struct BookRecord {
    std::string id;
    wire::WideString name;
    wire::WideString author;
    std::int32_t year = 0;
};

// What the lists of the test are read from, and a record of what they were asked to do.
struct Library {
    std::vector<BookRecord> books{{"m", u"Middlemarch", u"Eliot", 1871}, {"e", u"Emma", u"Austen", 1815}};
    bool answers = true;
    std::vector<std::string> done;
};
Library* library = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): as the server is one

class BookNode final : public RecordRow<BookNode, BookRecord> {
public:
    static constexpr NodeIdentity identity{.displayName = u"Book"};
    static const char16_t* century(const BookRecord& book) { return book.year < 1850 ? u"early" : u"late"; }
    static std::int64_t year(const BookRecord& book) { return book.year; }
    static constexpr std::array cells{RecordCell(&BookRecord::author), RecordCell(&century, &year)};
    static constexpr RowCommands rowCommands{.edit{u"Edit book", u"To edit the book", 5},
                                             .remove{u"Remove book", u"To remove the book", 6},
                                             .question = u"Remove it?"};
    using RecordRow::RecordRow;

protected:
    void openEditor() override { library->done.push_back("edit " + record().id); }
    void deleteRecord(client::CQVXAdminClass& /*client*/) override { library->done.push_back("delete " + record().id); }
};

class BooksNode final : public RecordList<BooksNode, BookNode> {
public:
    static constexpr NodeIdentity identity{.displayName = u"Books", .children = 1};
    static constexpr std::array titles{Column{u"Title", 2}, Column{u"Author"}, Column{u"Time"}};
    static constexpr MenuEntry newEntry{u"New book", u"To make a book", 4};
    using RecordList::RecordList;

protected:
    bool listRecords(client::CQVXAdminClass& /*client*/, std::vector<Record>& records) override {
        records = library->books;
        return library->answers;
    }
    void openEditor() override {
        library->done.emplace_back("new");
        addRow({"n", u"Nana", u"Zola", 1880});
    }
};

// What a row or a list opens that names its dialog.
class BookDlg final : public forms::Form {
public:
    explicit BookDlg(platform::Platform& platform) : Form(platform, u"New book") {}
    BookDlg(platform::Platform& platform, const BookRecord& book) : Form(platform, book.name) {}
};

class PamphletNode final : public RecordRow<PamphletNode, BookRecord> {
public:
    using Dialog = BookDlg;
    static constexpr NodeIdentity identity{.displayName = u"Pamphlet"};
    static constexpr std::array cells{RecordCell(&BookRecord::author)};
    static constexpr RowCommands rowCommands = BookNode::rowCommands;
    using RecordRow::RecordRow;

protected:
    void deleteRecord(client::CQVXAdminClass& /*client*/) override {}
};

class PamphletsNode final : public RecordList<PamphletsNode, PamphletNode> {
public:
    static constexpr NodeIdentity identity{.displayName = u"Pamphlets"};
    static constexpr std::array titles{Column{u"Title"}, Column{u"Author"}};
    static constexpr MenuEntry newEntry = BooksNode::newEntry;
    using RecordList::RecordList;

protected:
    bool listRecords(client::CQVXAdminClass& /*client*/, std::vector<Record>& records) override {
        records = library->books;
        return true;
    }
};

class RecordLists : public testing::Test {
protected:
    RecordLists() { library = &shelves; }
    ~RecordLists() override { library = nullptr; }

    Library shelves;
    support::TestPlatform platform;
    support::RecordingConsole host;
    std::shared_ptr<BooksNode> books = std::make_shared<BooksNode>(platform);
    ScopeId row = host.addScopeRow(books);

    void show() {
        books->scopeFields().ID = row;
        support::show(host, *books);
        host.calls.clear();
    }
};

TEST_F(RecordLists, showARowForEachRecord) {
    show();

    EXPECT_THAT(host.titles(), ElementsAre(u"Title", u"Author", u"Time"));
    EXPECT_THAT(host.table(),
                ElementsAre(ElementsAre(u"Middlemarch", u"Eliot", u"late"), ElementsAre(u"Emma", u"Austen", u"early")));
}

TEST_F(RecordLists, haveNoTextBeyondTheirColumns) {
    show();

    EXPECT_EQ(wire::WideString(support::shownNode(host, u"Emma")->GetResultPaneColInfo(3)), u"");
    EXPECT_EQ(wire::WideString(support::shownNode(host, u"Emma")->GetResultPaneColInfo(-1)), u"");
}

TEST_F(RecordLists, tellTheNumberByWhichAColumnIsSorted) {
    show();

    const auto emma = support::shownNode(host, u"Emma");
    EXPECT_EQ(emma->sortValue(2), 1815);
    EXPECT_EQ(emma->sortValue(1), std::nullopt);
    EXPECT_EQ(emma->sortValue(0), std::nullopt);
}

TEST_F(RecordLists, keepTheRowOfARecordThatStays) {
    show();
    const auto id = host.resultRows[1].id;
    shelves.books.erase(shelves.books.begin());

    show();

    EXPECT_EQ(host.resultRows[0].id, id);
}

TEST_F(RecordLists, haveNoRowsWithoutAnAnswer) {
    show();
    shelves.answers = false;

    show();

    EXPECT_THAT(host.table(), IsEmpty());
}

TEST_F(RecordLists, offerToMakeEditAndRemove) {
    using Item = support::RecordingConsole::MenuItem;
    show();

    EXPECT_THAT(support::menuOf(host, *books), ElementsAre(Item{u"New book", u"To make a book", 4, 0}));
    EXPECT_THAT(
        support::menuOf(host, *support::shownNode(host, u"Emma")),
        ElementsAre(Item{u"Edit book", u"To edit the book", 5, 0}, Item{u"Remove book", u"To remove the book", 6, 0}));
}

TEST_F(RecordLists, makeARecordSelectThemselvesAndHaveTheListReadAgain) {
    show();

    EXPECT_EQ(books->Command(4, DataObjectType::scope), Result::ok);

    EXPECT_THAT(shelves.done, ElementsAre("new"));
    EXPECT_THAT(host.calls, ElementsAre("SelectScopeItem 1"));
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(Key::up, Key::down, Key::f5, Key::f5)));
    EXPECT_EQ(books->OnShow(host, false, 1), Result::ok);
    EXPECT_EQ(host.resultRows.size(), 3U);
}

TEST_F(RecordLists, editARecordAndSelectTheList) {
    show();

    support::shownNode(host, u"Emma")->Command(5, DataObjectType::result);

    EXPECT_THAT(shelves.done, ElementsAre("edit e"));
    EXPECT_THAT(host.calls, ElementsAre("SelectScopeItem 1"));
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(Key::f5, Key::f5)));
}

TEST_F(RecordLists, removeARecordAfterAQuestion) {
    show();
    const auto emma = support::shownNode(host, u"Emma");
    platform.ui.expectBox(platform::Answer::cancel, u"Remove it?");
    platform.ui.expectBox(platform::Answer::ok, u"Remove it?");

    EXPECT_EQ(emma->Command(6, DataObjectType::result), Result::notDone);
    EXPECT_THAT(shelves.done, IsEmpty());
    EXPECT_THAT(platform.ui.presses(), IsEmpty());
    EXPECT_EQ(emma->Command(6, DataObjectType::result), Result::ok);

    EXPECT_THAT(shelves.done, ElementsAre("delete e"));
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(Key::tab, Key::up, Key::down, Key::f5)));
}

TEST_F(RecordLists, openTheDialogThatTheRowNamesForANewRecordAndForItsOwn) {
    const auto pamphlets = std::make_shared<PamphletsNode>(platform);
    const auto emma = std::make_shared<PamphletNode>(platform, shelves.books[1]);
    std::vector<wire::WideString> titles;
    const auto note = [&titles](BookDlg& dialog) {
        titles.push_back(dialog.title());
        dialog.cancelButton().userPressed();
    };
    platform.ui.expect<BookDlg>(note);
    platform.ui.expect<BookDlg>(note);

    pamphlets->Command(4, DataObjectType::scope);
    emma->Command(5, DataObjectType::result);

    EXPECT_THAT(titles, ElementsAre(u"New book", u"Emma"));
}

TEST_F(RecordLists, leaveARowThatStandsInNoConsoleAlone) {
    const auto book = std::make_shared<BookNode>(platform, shelves.books[0]);

    EXPECT_EQ(book->Command(5, DataObjectType::result), Result::ok);

    EXPECT_THAT(platform.ui.presses(), IsEmpty());
}

} // namespace
} // namespace console
