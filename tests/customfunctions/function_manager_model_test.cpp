// The Custom Function Manager: its states, Save in both forms, Cancel and
// Delete, through a document store and a host that the tests script.
#include "customfunctions/function_manager_model.h"

#include <gtest/gtest.h>

#include "engine/engine.h"
#include "engine/text_codec.h"
#include "memory_document_store.h"

namespace tessarondel {
namespace {

using testing::MemoryDocumentStore;

std::string U8(std::u16string_view text) { return ToUtf8(text); }

// Records the boxes as "text | title" and answers every question alike.
class RecordingHost final : public FunctionManagerHost {
public:
    void InsertFunction(std::u16string_view text) override { inserted.emplace_back(text); }
    void SetQuickReference(std::u16string) override {}
    void SetFunctionManagerOption(bool) override {}
    void ShowNotice(std::u16string_view text, std::u16string_view title) override {
        notices.push_back(U8(text) + " | " + U8(title));
    }
    bool Confirm(std::u16string_view text, std::u16string_view title) override {
        questions.push_back(U8(text) + " | " + U8(title));
        return answer;
    }

    bool answer = true;
    std::vector<std::u16string> inserted;
    std::vector<std::string> notices;
    std::vector<std::string> questions;
};

const CustomFunctionDocument kHyp{u"Hyp", u"a, b", u"s=a^2+b^2 ' squares\r\nsqrt(s)\r\n",
                                  u"Length of the hypotenuse\r\n"};
const CustomFunctionDocument kDouble{u"twice", u"n", u"2*n\r\n", u"Two times\r\nthe number\r\n"};

const std::string kSaveFault = "Some errors occurred when Saving the Custom Function! | Error Information";
const std::string kRemoveFault = "Some errors occurred when removing the Custom Function! | Error Information";
const std::string kDiscardQuestion = "Really don't save the changed information? | Information";
std::string DeleteQuestion(const char* name) {
    return std::string("Really removing the selected custom function: ") + name + " ? | Information";
}

class FunctionManager : public ::testing::Test {
public:
    FunctionManager() {
        engine.ShowMessageBox = [this](const std::u16string& text, const std::u16string&) {
            engineBoxes.push_back(U8(text));
        };
    }

    void Load(std::vector<CustomFunctionDocument> documents) {
        store.loaded.documents = std::move(documents);
        manager.Load();
    }
    void Type(FunctionField field, std::u16string text) { manager.SetFieldText(field, std::move(text)); }
    void TypeNew(const CustomFunctionDocument& document) {
        manager.cmdNew();
        Type(FunctionField::Name, document.Name);
        Type(FunctionField::Parameters, document.ParameterText);
        Type(FunctionField::Expression, document.Expression);
        Type(FunctionField::Description, document.Description);
    }
    std::string Evaluate(std::u16string_view text) { return U8(EvaluateText(engine, text)); }
    std::string Field(FunctionField field) const { return U8(manager.FieldText(field)); }

    EngineState engine;
    MemoryDocumentStore store;
    RecordingHost host;
    FunctionManagerModel manager{engine, store, host};
    std::vector<std::string> engineBoxes;
};

// --- The states ------------------------------------------------------------------

// List locks every box; New opens them all; Edit all but the name. Insert and
// Close are always on.
void ExpectControlsFor(const FunctionManagerModel& manager, ManagerState state) {
    const bool list = state == ManagerState::List;
    EXPECT_EQ(manager.State(), state);
    EXPECT_EQ(manager.Editing(), !list);
    EXPECT_EQ(manager.FieldLocked(FunctionField::Name), state != ManagerState::New);
    for (FunctionField field : {FunctionField::Parameters, FunctionField::Expression, FunctionField::Description}) {
        EXPECT_EQ(manager.FieldLocked(field), list);
    }
    for (ManagerButton button : {ManagerButton::Ok, ManagerButton::Cancel}) {
        EXPECT_EQ(manager.ButtonEnabled(button), !list);
    }
    for (ManagerButton button : {ManagerButton::New, ManagerButton::Edit, ManagerButton::Delete}) {
        EXPECT_EQ(manager.ButtonEnabled(button), list);
    }
    EXPECT_TRUE(manager.ButtonEnabled(ManagerButton::Insert));
    EXPECT_TRUE(manager.ButtonEnabled(ManagerButton::Close));
}

TEST_F(FunctionManager, LocksAndButtonsFollowTheStateAndCancelAsksFirst) {
    Load({kHyp});
    ExpectControlsFor(manager, ManagerState::List);
    manager.cmdNew();
    ExpectControlsFor(manager, ManagerState::New);
    host.answer = false;
    manager.cmdCancel();
    ExpectControlsFor(manager, ManagerState::New);
    host.answer = true;
    manager.cmdCancel();
    ExpectControlsFor(manager, ManagerState::List);
    manager.cmdEdit();
    ExpectControlsFor(manager, ManagerState::Edit);
    manager.cmdCancel();
    ExpectControlsFor(manager, ManagerState::List);
    EXPECT_EQ(host.questions, std::vector<std::string>(3, kDiscardQuestion));
}

// --- Load and list ---------------------------------------------------------------

TEST_F(FunctionManager, WithoutDocumentsEditAndDeleteAreOffAndInsertDoesNothing) {
    Load({});
    EXPECT_TRUE(manager.Rows().empty());
    EXPECT_FALSE(manager.ButtonEnabled(ManagerButton::Edit));
    EXPECT_FALSE(manager.ButtonEnabled(ManagerButton::Delete));
    manager.cmdInsert();
    manager.DoubleClickList();
    manager.cmdEdit();
    EXPECT_TRUE(host.inserted.empty());
    EXPECT_EQ(manager.State(), ManagerState::List);
    EXPECT_EQ(manager.FunctionMenu().size(), 2u);
}

TEST_F(FunctionManager, LoadDefinesEveryDocumentAndListsIt) {
    Load({kHyp, kDouble});
    EXPECT_EQ(Evaluate(u"hyp(3,4)"), "5");
    EXPECT_EQ(Evaluate(u"twice(21)"), "42");
    ASSERT_EQ(manager.Rows().size(), 2u);
    EXPECT_EQ(U8(manager.Rows()[0].Name), "Hyp");
    EXPECT_EQ(U8(manager.Rows()[1].Description), "Two times    the number    ");
    ASSERT_EQ(manager.FunctionMenu().size(), 4u);
    EXPECT_EQ(U8(manager.FunctionMenu()[0].Caption), "Add New...");
    EXPECT_EQ(U8(manager.FunctionMenu()[1].Caption), "-");
    EXPECT_EQ(U8(manager.FunctionMenu()[2].Tag), "Function:Hyp(a, b)\r\nDescription:Length of the hypotenuse\r\n");
    EXPECT_EQ(manager.FunctionCount(), 2);
}

TEST_F(FunctionManager, AFolderThatCannotBeReadDefinesNothing) {
    store.loaded.failed = true;
    Load({kHyp});
    EXPECT_EQ(host.notices,
              (std::vector<std::string>{"Some errors occurred when Loading the Custom Function! | Error Information"}));
    EXPECT_TRUE(manager.Rows().empty());
    EXPECT_EQ(manager.FunctionCount(), 0);
}

TEST_F(FunctionManager, ClickingARowFillsTheBoxesButNotWhileEditing) {
    Load({kHyp, kDouble});
    manager.SelectRow(2);
    manager.ClickList();
    EXPECT_EQ(Field(FunctionField::Name), "twice");
    EXPECT_EQ(Field(FunctionField::Expression), "2*n\r\n");
    manager.cmdEdit();
    manager.SelectRow(1);
    manager.ClickList();
    EXPECT_EQ(Field(FunctionField::Name), "twice");
}

TEST_F(FunctionManager, DetailsSnapToTwoHeights) {
    Load({});
    EXPECT_EQ(manager.Height(), 2565);
    EXPECT_TRUE(manager.DetailsButtonVisible(1));
    manager.Resize(3000);
    EXPECT_EQ(manager.Height(), 5505);
    EXPECT_TRUE(manager.DetailsButtonVisible(0));
    EXPECT_FALSE(manager.DetailsButtonVisible(1));
    manager.Resize(2565);
    EXPECT_EQ(manager.Height(), 2565);
    manager.cmdNew();
    EXPECT_EQ(manager.Height(), 5505);
    manager.FitHeights(3000, 5000);  // contents that need more than the collapsed height
    manager.Resize(2990);
    EXPECT_EQ(manager.Height(), 3000);
    manager.Resize(3001);
    EXPECT_EQ(manager.Height(), 5505);
}

// --- Saving a new function -------------------------------------------------------

TEST_F(FunctionManager, SavingANewFunctionWritesListsAndDefinesIt) {
    Load({kHyp});
    TypeNew({u"  Area ", u"w,h", u" w*h ", u" rectangle "});
    manager.cmdOK();
    EXPECT_EQ(manager.State(), ManagerState::List);
    ASSERT_EQ(store.written.count(u"Area"), 1u);
    EXPECT_EQ(U8(store.written[u"Area"].Expression), "w*h");
    EXPECT_EQ(U8(store.written[u"Area"].Description), "rectangle");
    EXPECT_EQ(U8(manager.Rows().back().Name), "Area");
    EXPECT_EQ(U8(manager.FunctionMenu().back().Caption), "Area");
    EXPECT_EQ(Evaluate(u"area(3,4)"), "12");
    EXPECT_FALSE(engine.ShowErrorBox);
    EXPECT_TRUE(engineBoxes.empty());
}

// The window's own check comes first, then the engine's with its box shown
// for the save; neither writes anything and the state stays New.
TEST_F(FunctionManager, ASaveRefusedByTheWindowOrTheEngineChangesNothing) {
    Load({kHyp});
    for (const CustomFunctionDocument& typed :
         {CustomFunctionDocument{u"f", u"", u"   ", u""}, CustomFunctionDocument{u"", u"", u"1", u""},
          CustomFunctionDocument{u"hyp", u"x", u"x", u""}}) {
        TypeNew(typed);
        manager.cmdOK();
        EXPECT_EQ(manager.State(), ManagerState::New);
    }
    EXPECT_EQ(host.notices,
              std::vector<std::string>(2, "The Function Name and the Expression List can not be empty! | Information"));
    EXPECT_EQ(engineBoxes, (std::vector<std::string>{"ErrNum:9\r\nErrInformation:Redefine the custom functions!"}));
    EXPECT_EQ(engine.ErrorNumber, 9);
    EXPECT_EQ(Field(FunctionField::Name), "hyp");
    EXPECT_TRUE(store.written.empty());
    EXPECT_EQ(manager.Rows().size(), 1u);
    EXPECT_FALSE(engine.ShowErrorBox);
}

TEST_F(FunctionManager, AFileThatCannotBeWrittenKeepsTheFunctionButStaysInNew) {
    Load({});
    store.failWrites = true;
    TypeNew({u"square", u"x", u"x*x", u""});
    manager.cmdOK();
    EXPECT_EQ(host.notices, (std::vector<std::string>{kSaveFault}));
    EXPECT_EQ(manager.State(), ManagerState::New);
    EXPECT_EQ(manager.Rows().size(), 1u);
    EXPECT_EQ(Evaluate(u"square(5)"), "25");
    EXPECT_FALSE(engine.ShowErrorBox);
    EXPECT_TRUE(engineBoxes.empty());
}

// --- Saving an edited function -----------------------------------------------------

TEST_F(FunctionManager, SavingAnEditJoinsTheBodyAndUpdatesRowFileAndMenu) {
    Load({kHyp, kDouble});
    manager.SelectRow(2);
    manager.cmdEdit();
    Type(FunctionField::Expression, u"m=3*n ' three\r\nm\r\n");
    Type(FunctionField::Description, u"Three times\r\n");
    manager.cmdOK();
    EXPECT_EQ(manager.State(), ManagerState::List);
    EXPECT_EQ(Evaluate(u"twice(2)"), "6");
    EXPECT_EQ(U8(store.written[u"twice"].Expression), "m=3*n ' three\r\nm\r\n");
    EXPECT_EQ(U8(manager.Rows()[1].Description), "Three times    ");
    EXPECT_EQ(U8(manager.FunctionMenu()[3].Tag), "Function:twice(n)\r\nDescription:Three times\r\n");
    EXPECT_FALSE(engine.ShowErrorBox);
}

TEST_F(FunctionManager, AnEditOfNothingButNotesFailsAndWritesNothing) {
    Load({kHyp});
    manager.cmdEdit();
    Type(FunctionField::Expression, u"' only a note");
    manager.cmdOK();
    EXPECT_EQ(host.notices, (std::vector<std::string>{kSaveFault}));
    EXPECT_EQ(manager.State(), ManagerState::Edit);
    EXPECT_TRUE(store.written.empty());
    EXPECT_TRUE(engine.ShowErrorBox);  // stays on after a fault
    EXPECT_EQ(Evaluate(u"hyp(3,4)"), "5");
}

// --- Deleting ------------------------------------------------------------------------

TEST_F(FunctionManager, DeleteAsksAndTheLastOneEmptiesTheBoxesAndDisablesEditAndDelete) {
    Load({kHyp, kDouble});
    host.answer = false;
    manager.cmdDelete();
    EXPECT_EQ(manager.Rows().size(), 2u);
    EXPECT_EQ(Evaluate(u"hyp(3,4)"), "5");

    host.answer = true;
    manager.cmdDelete();
    EXPECT_EQ(store.deleted, (std::vector<std::u16string>{u"Hyp"}));
    ASSERT_EQ(manager.Rows().size(), 1u);
    EXPECT_EQ(U8(manager.Documents()[1].Name), "twice");
    EXPECT_EQ(manager.FunctionMenu().size(), 3u);
    EXPECT_EQ(Field(FunctionField::Name), "twice");
    EXPECT_NE(Evaluate(u"hyp(3,4)"), "5");

    manager.cmdDelete();
    EXPECT_EQ(host.questions,
              (std::vector<std::string>{DeleteQuestion("Hyp"), DeleteQuestion("Hyp"), DeleteQuestion("twice")}));
    EXPECT_TRUE(manager.Rows().empty());
    EXPECT_EQ(Field(FunctionField::Name), "");
    EXPECT_FALSE(manager.ButtonEnabled(ManagerButton::Edit));
    EXPECT_FALSE(manager.ButtonEnabled(ManagerButton::Delete));
}

TEST_F(FunctionManager, AFileThatCannotBeDeletedIsReportedAfterTheFunctionLeft) {
    Load({kHyp});
    store.failDeletes = true;
    manager.cmdDelete();
    EXPECT_EQ(host.notices, (std::vector<std::string>{kRemoveFault}));
    EXPECT_TRUE(manager.Rows().empty());
    EXPECT_EQ(manager.FunctionCount(), 0);
}

// The engine goes first: a function it can't drop keeps its row and file.
TEST_F(FunctionManager, ARowTheEngineNeverHeldCannotBeDeleted) {
    Load({kHyp});
    engine.CustomFunctionTable.Deallocate();
    engine.CustomFunctionNames.clear();
    manager.cmdDelete();
    EXPECT_EQ(host.notices, (std::vector<std::string>{kRemoveFault}));
    EXPECT_EQ(manager.Rows().size(), 1u);
    EXPECT_TRUE(store.deleted.empty());
}

}  // namespace
}  // namespace tessarondel
