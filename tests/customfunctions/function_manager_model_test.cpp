// The Custom Function Manager: its states, Save in both forms, Cancel, Delete
// and Insert, through a document store and a host that the tests script.
#include "customfunctions/function_manager_model.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>

#include "engine/engine.h"
#include "engine/text_codec.h"

namespace tessarondel {
namespace {

std::string U8(std::u16string_view text) { return ToUtf8(text); }

class MemoryDocumentStore final : public FunctionDocumentStore {
public:
    FolderReadResult LoadAll() override { return loaded; }
    bool Write(const CustomFunctionDocument& document) override {
        if (failWrites) return false;
        written[document.Name] = document;
        return true;
    }
    bool Delete(std::u16string_view name) override {
        if (failDeletes) return false;
        deleted.emplace_back(name);
        return true;
    }

    FolderReadResult loaded;
    bool failWrites = false;
    bool failDeletes = false;
    std::map<std::u16string, CustomFunctionDocument> written;
    std::vector<std::u16string> deleted;
};

// Confirmations are answered from a script; any box the script lacks fails.
class ScriptedHost final : public FunctionManagerHost {
public:
    ~ScriptedHost() {
        for (const auto& [text, answer] : confirmations) ADD_FAILURE() << "question never asked: " << U8(text);
    }
    void InsertFunction(std::u16string_view text) override { inserted.emplace_back(text); }
    void SetQuickReference(std::u16string text) override { quickReference = std::move(text); }
    void SetFunctionManagerOption(bool checked) override { option = checked; }
    void ShowNotice(std::u16string_view text, std::u16string_view title) override {
        notices.push_back(U8(text) + " | " + U8(title));
    }
    bool Confirm(std::u16string_view text, std::u16string_view title) override {
        EXPECT_EQ(U8(title), "Information");
        if (confirmations.empty()) {
            ADD_FAILURE() << "unexpected question: " << U8(text);
            return false;
        }
        auto [expected, answer] = confirmations.front();
        confirmations.pop_front();
        EXPECT_EQ(U8(text), U8(expected));
        return answer;
    }

    std::deque<std::pair<std::u16string, bool>> confirmations;
    std::vector<std::u16string> inserted;
    std::u16string quickReference;
    std::optional<bool> option;
    std::vector<std::string> notices;
};

const CustomFunctionDocument kHyp{u"Hyp", u"a, b", u"s=a^2+b^2 ' squares\r\nsqrt(s)\r\n",
                                  u"Length of the hypotenuse\r\n"};
const CustomFunctionDocument kDouble{u"twice", u"n", u"2*n\r\n", u"Two times\r\nthe number\r\n"};

const std::string kSaveFault = "Some errors occurred when Saving the Custom Function! | Error Information";
const std::string kRemoveFault = "Some errors occurred when removing the Custom Function! | Error Information";

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
    ScriptedHost host;
    FunctionManagerModel manager{engine, store, host};
    std::vector<std::string> engineBoxes;
};

// --- The state table -----------------------------------------------------------

struct StateRow {
    const char* name;
    void (*reach)(FunctionManager&, FunctionManagerModel&, ScriptedHost&);
    ManagerState state;
    bool nameLocked;
    bool othersLocked;
    bool okCancel;
    bool newEnabled;
    bool editDelete;
};

class ManagerStates : public FunctionManager, public ::testing::WithParamInterface<StateRow> {};

const StateRow kStateRows[] = {
    {"ListAfterLoad", [](FunctionManager&, FunctionManagerModel&, ScriptedHost&) {}, ManagerState::List, true, true,
     false, true, true},
    {"NewFromList", [](FunctionManager&, FunctionManagerModel& m, ScriptedHost&) { m.cmdNew(); }, ManagerState::New,
     false, false, true, false, false},
    {"EditFromList", [](FunctionManager&, FunctionManagerModel& m, ScriptedHost&) { m.cmdEdit(); }, ManagerState::Edit,
     true, false, true, false, false},
    {"CancelAnsweredYes",
     [](FunctionManager&, FunctionManagerModel& m, ScriptedHost& h) {
         m.cmdEdit();
         h.confirmations.push_back({u"Really don't save the changed information?", true});
         m.cmdCancel();
     },
     ManagerState::List, true, true, false, true, true},
    {"CancelAnsweredNoStays",
     [](FunctionManager&, FunctionManagerModel& m, ScriptedHost& h) {
         m.cmdNew();
         h.confirmations.push_back({u"Really don't save the changed information?", false});
         m.cmdCancel();
     },
     ManagerState::New, false, false, true, false, false},
    {"SavedNew",
     [](FunctionManager& t, FunctionManagerModel& m, ScriptedHost&) {
         t.TypeNew(kDouble);
         m.cmdOK();
     },
     ManagerState::List, true, true, false, true, true},
    {"FailedSaveStays",
     [](FunctionManager&, FunctionManagerModel& m, ScriptedHost&) {
         m.cmdNew();
         m.cmdOK();
     },
     ManagerState::New, false, false, true, false, false},
};

TEST_P(ManagerStates, LocksAndButtonsFollowTheState) {
    const StateRow& row = GetParam();
    Load({kHyp});
    row.reach(*this, manager, host);
    EXPECT_EQ(manager.State(), row.state);
    EXPECT_EQ(manager.Editing(), row.state != ManagerState::List);
    EXPECT_EQ(manager.FieldLocked(FunctionField::Name), row.nameLocked);
    for (FunctionField field : {FunctionField::Parameters, FunctionField::Expression, FunctionField::Description}) {
        EXPECT_EQ(manager.FieldLocked(field), row.othersLocked);
    }
    EXPECT_EQ(manager.ButtonEnabled(ManagerButton::Ok), row.okCancel);
    EXPECT_EQ(manager.ButtonEnabled(ManagerButton::Cancel), row.okCancel);
    EXPECT_EQ(manager.ButtonEnabled(ManagerButton::New), row.newEnabled);
    EXPECT_EQ(manager.ButtonEnabled(ManagerButton::Edit), row.editDelete);
    EXPECT_EQ(manager.ButtonEnabled(ManagerButton::Delete), row.editDelete);
    EXPECT_TRUE(manager.ButtonEnabled(ManagerButton::Insert));
    EXPECT_TRUE(manager.ButtonEnabled(ManagerButton::Close));
}

INSTANTIATE_TEST_SUITE_P(States, ManagerStates, ::testing::ValuesIn(kStateRows),
                         [](const auto& info) { return std::string(info.param.name); });

// --- Load, list, insert ----------------------------------------------------------

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

TEST_F(FunctionManager, InsertPutsTheCallAndTheQuickReference) {
    Load({kHyp});
    manager.cmdInsert();
    EXPECT_EQ(host.inserted, (std::vector<std::u16string>{u"Hyp()"}));
    EXPECT_EQ(U8(host.quickReference), "Function:Hyp(a, b)\r\nDescription:Length of the hypotenuse\r\n");
}

TEST_F(FunctionManager, CloseUnchecksTheShellsOption) {
    Load({});
    manager.cmdClose();
    EXPECT_EQ(host.option, false);
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

TEST_F(FunctionManager, EmptyNameOrExpressionIsRefusedBeforeAnythingChanges) {
    Load({});
    TypeNew({u"f", u"", u"   ", u""});
    manager.cmdOK();
    EXPECT_EQ(host.notices,
              (std::vector<std::string>{"The Function Name and the Expression List can not be empty! | Information"}));
    EXPECT_EQ(manager.State(), ManagerState::New);
    EXPECT_TRUE(store.written.empty());
}

TEST_F(FunctionManager, ANameThatExistsGetsTheEnginesBoxAndTheStateStays) {
    Load({kHyp});
    TypeNew({u"hyp", u"x", u"x", u""});
    manager.cmdOK();
    EXPECT_EQ(engineBoxes, (std::vector<std::string>{"ErrNum:9\r\nErrInformation:Redefine the custom functions!"}));
    EXPECT_EQ(engine.ErrorNumber, 9);
    EXPECT_EQ(manager.State(), ManagerState::New);
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
    EXPECT_TRUE(engineBoxes.empty()) << engineBoxes.front();
}

// --- Saving an edited function -----------------------------------------------------

TEST_F(FunctionManager, SavingAnEditJoinsTheBodyAndUpdatesRowFileAndMenu) {
    Load({kHyp, kDouble});
    manager.SelectRow(2);
    manager.cmdEdit();
    EXPECT_TRUE(manager.FieldLocked(FunctionField::Name));
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

TEST_F(FunctionManager, DeleteAnsweredNoOrCancelKeepsEverything) {
    Load({kHyp});
    host.confirmations.push_back({u"Really removing the selected custom function: Hyp ?", false});
    manager.cmdDelete();
    EXPECT_EQ(manager.Rows().size(), 1u);
    EXPECT_TRUE(store.deleted.empty());
    EXPECT_EQ(Evaluate(u"hyp(3,4)"), "5");
}

TEST_F(FunctionManager, DeletingTheLastFunctionEmptiesTheBoxesAndDisablesEditAndDelete) {
    Load({kHyp, kDouble});
    manager.SelectRow(1);
    host.confirmations.push_back({u"Really removing the selected custom function: Hyp ?", true});
    manager.cmdDelete();
    EXPECT_EQ(store.deleted, (std::vector<std::u16string>{u"Hyp"}));
    ASSERT_EQ(manager.Rows().size(), 1u);
    EXPECT_EQ(U8(manager.Documents()[1].Name), "twice");
    EXPECT_EQ(manager.FunctionMenu().size(), 3u);
    EXPECT_EQ(Field(FunctionField::Name), "twice");
    EXPECT_NE(Evaluate(u"hyp(3,4)"), "5");

    host.confirmations.push_back({u"Really removing the selected custom function: twice ?", true});
    manager.cmdDelete();
    EXPECT_TRUE(manager.Rows().empty());
    EXPECT_EQ(Field(FunctionField::Name), "");
    EXPECT_FALSE(manager.ButtonEnabled(ManagerButton::Edit));
    EXPECT_FALSE(manager.ButtonEnabled(ManagerButton::Delete));
}

TEST_F(FunctionManager, AFileThatCannotBeDeletedIsReportedAfterTheFunctionLeft) {
    Load({kHyp});
    store.failDeletes = true;
    host.confirmations.push_back({u"Really removing the selected custom function: Hyp ?", true});
    manager.cmdDelete();
    EXPECT_EQ(host.notices, (std::vector<std::string>{kRemoveFault}));
    EXPECT_TRUE(manager.Rows().empty());
    EXPECT_EQ(manager.FunctionCount(), 0);
}

TEST_F(FunctionManager, ARowTheEngineNeverHeldCannotBeDeleted) {
    Load({kHyp});
    engine.CustomFunctionTable.Deallocate();
    engine.CustomFunctionNames.clear();
    host.confirmations.push_back({u"Really removing the selected custom function: Hyp ?", true});
    manager.cmdDelete();
    EXPECT_EQ(host.notices, (std::vector<std::string>{kRemoveFault}));
    EXPECT_EQ(manager.Rows().size(), 1u);
    EXPECT_TRUE(store.deleted.empty());
}

}  // namespace
}  // namespace tessarondel
