#include "hosts/ctl/CtlUserInterface.h"
#include "tests/hosts/ctl/TestForm.h"
#include "tests/support/MemorySettingsStore.h"

#include <gmock/gmock.h>

#include <sstream>

namespace hosttest {
namespace {

using ctl::parseStep;
using ctl::Step;
using platform::Answer;
using testing::HasSubstr;
namespace style = platform::boxStyle;

class CtlUserInterface : public testing::Test {
protected:
    void give(std::vector<Step> steps) { ui.setSteps(ctl::StepList(std::move(steps))); }
    static Step press(const std::string& label) { return parseStep(Step::Kind::press, label); }
    static Step answer(const std::string& word) { return parseStep(Step::Kind::answer, word); }
    std::string failure() {
        try {
            ui.finish();
        } catch (const ctl::Failure& failed) {
            EXPECT_EQ(failed.status(), ctl::ExitStatus::refused);
            return failed.what();
        }
        return {};
    }

    shell::TaskQueue tasks;
    std::ostringstream errors;
    ctl::CtlUserInterface ui{tasks, errors};
    support::MemorySettingsStore settings;
    platform::Platform platform{.ui = ui, .settings = settings};
    TestForm form{platform};
};

TEST_F(CtlUserInterface, aQuestionTakesTheNextAnswer) {
    give({answer("ok")});

    EXPECT_EQ(ui.messageBox(0, u"Sure?", u"Warning", style::okCancel), Answer::ok);
    EXPECT_EQ(failure(), "");
}

TEST_F(CtlUserInterface, aQuestionWithoutAnAnswerGetsTheLeastAndFails) {
    EXPECT_EQ(ui.messageBox(0, u"Sure?  ", u"Warning", style::okCancel), Answer::cancel);
    EXPECT_EQ(failure(), "Warning: Sure? (answer with --answer ok|cancel)");
}

TEST_F(CtlUserInterface, aYesOrNoQuestionIsNotAnsweredWithOk) {
    give({answer("ok")});

    EXPECT_EQ(ui.messageBox(0, u"Sure?", u"Warning", style::yesNo), Answer::no);
    EXPECT_THAT(failure(), HasSubstr("yes|no"));
}

TEST_F(CtlUserInterface, aStatementWithoutAnAnswerIsTheFailure) {
    EXPECT_EQ(ui.messageBox(0, u"Not empty", u"Information", style::iconInformation), Answer::ok);
    EXPECT_EQ(failure(), "Information: Not empty");
}

TEST_F(CtlUserInterface, aStatementWithAnAnswerIsPrinted) {
    give({answer("ok")});

    ui.messageBox(0, u"It is so", u"Information", style::iconInformation);

    EXPECT_EQ(errors.str(), "vantrelctl: Information: It is so\n");
    EXPECT_EQ(failure(), "");
}

TEST_F(CtlUserInterface, anErrorFailsEvenWithAnAnswer) {
    give({answer("ok")});

    ui.messageBox(0, u"It broke", u"Error", style::iconStop);

    EXPECT_EQ(failure(), "Error: It broke");
}

TEST_F(CtlUserInterface, aFormTakesItsSteps) {
    give({parseStep(Step::Kind::set, "Name=Hall"), press("OK")});

    EXPECT_EQ(ui.runModal(form, 0), forms::idOk);
    EXPECT_EQ(form.name.text(), u"Hall");
    EXPECT_EQ(failure(), "");
}

TEST_F(CtlUserInterface, aQuestionOfAFormTakesTheStepInBetween) {
    give({press("Ask"), answer("ok"), press("Cancel")});

    ui.runModal(form, 0);

    EXPECT_EQ(form.answer, Answer::ok);
    EXPECT_EQ(failure(), "");
}

TEST_F(CtlUserInterface, aFormWithoutStepsIsCancelled) {
    EXPECT_EQ(ui.runModal(form, 0), forms::idCancel);
    EXPECT_THAT(failure(), HasSubstr("\"A form\" was left open"));
}

TEST_F(CtlUserInterface, anAnswerWithoutAQuestionFails) {
    give({answer("ok")});

    ui.runModal(form, 0);

    EXPECT_THAT(failure(), HasSubstr("No question was asked"));
}

TEST_F(CtlUserInterface, stepsThatAreLeftOverFail) {
    give({press("OK")});

    EXPECT_EQ(failure(), "There was no form or message box for the step --press \"OK\"");
}

TEST_F(CtlUserInterface, noStepIsTakenAfterACommandHasFailed) {
    give({parseStep(Step::Kind::set, "Name=Hall"), press("OK")});
    ui.beforeStep = [&] {
        if (!form.name.text().empty()) {
            throw ctl::Failure(ctl::ExitStatus::refused, "It has failed");
        }
    };

    ui.runModal(form, 0);

    EXPECT_EQ(form.result(), forms::idCancel);
    EXPECT_EQ(failure(), "It has failed");
}

TEST_F(CtlUserInterface, noQuestionIsAnsweredAfterACommandHasFailed) {
    give({answer("ok")});
    ui.beforeStep = [] { throw ctl::Failure(ctl::ExitStatus::refused, "It has failed"); };

    EXPECT_EQ(ui.messageBox(0, u"Sure?", u"Warning", style::okCancel), Answer::cancel);
    EXPECT_EQ(failure(), "It has failed");
}

} // namespace
} // namespace hosttest
