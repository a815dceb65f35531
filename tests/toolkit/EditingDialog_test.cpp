#include "toolkit/EditingDialog.h"

#include "tests/support/DialogTest.h"
#include "toolkit/CImageButton.h"
#include "toolkit/Controls.h"
#include "toolkit/RunDialog.h"

namespace qv {
namespace {

constexpr int nameEdit = 10;
constexpr int expressionEdit = 11;

/// A form of which a test says how its save ends.
struct TestForm {
  SaveEnd end{SaveOutcome::Saved, {}};
  bool modified = false;
  int saves = 0;

  bool IsModified() const { return modified; }
};

class TestEditor : public EditingDialog<TestForm> {
 public:
  TestEditor() : EditingDialog(nullptr) { Build(*this); }

  /// The controls of the template.
  void setupUi(QDialog* dialog) const {
    dialog->resize(100, 100);
    Add<QLineEdit>(dialog, nameEdit);
    Add<QLineEdit>(dialog, expressionEdit);
    Add<CImageButton>(dialog, IDOK);
    Add<CImageButton>(dialog, IDCANCEL);
  }

  TestForm* Form() const { return m_form.get(); }

  TestForm initial;
  bool isMissing = false;
  int shown = 0;

 protected:
  std::unique_ptr<TestForm> MakeForm() override {
    return isMissing ? nullptr : std::make_unique<TestForm>(initial);
  }
  void OnInitDialog() override { ++shown; }
  void PositioningControls() override {}
  SaveEnd Save() override {
    ++m_form->saves;
    return m_form->end;
  }
  QWidget* ControlOf(Field field) const override {
    return Control(field == Field::Name ? nameEdit : expressionEdit);
  }

 private:
  template <class Widget>
  static void Add(QDialog* dialog, int id) {
    (new Widget(dialog))->setProperty(controlIdProperty, id);
  }
};

class EditingDialogTest : public DialogTest {};

TEST_F(EditingDialogTest, ADoneSaveEndsItWithOk) {
  for (const SaveOutcome outcome : {SaveOutcome::Saved, SaveOutcome::Unchanged}) {
    TestEditor editor;
    editor.initial.end.outcome = outcome;
    EXPECT_EQ(Play(editor, [] { Click(IDOK); }), IDOK);
  }
}

TEST_F(EditingDialogTest, ARefusedOrFailedSaveLeavesItOpen) {
  for (const SaveOutcome outcome : {SaveOutcome::Refused, SaveOutcome::NotWritten}) {
    TestEditor editor;
    editor.initial.end.outcome = outcome;
    EXPECT_EQ(Play(editor,
                   [&] {
                     Click(IDOK);
                     EXPECT_TRUE(editor.isVisible());
                     EXPECT_EQ(editor.Form()->saves, 1);
                     Click(IDCANCEL);
                   }),
              IDCANCEL);
  }
}

TEST_F(EditingDialogTest, ARefusalIsToldAndTheFocusStays) {
  TestEditor editor;
  editor.initial.end = {SaveOutcome::Refused, Refused(Text::NoHourType)};
  Play(editor, [&] {
    editor.Control(expressionEdit)->setFocus();
    AnswerNextBox(Text::NoHourType, QMessageBox::Ok);
    Press(expressionEdit, Qt::Key_Return);
    EXPECT_EQ(editor.focusWidget(), editor.Control(expressionEdit));
    Click(IDCANCEL);
  });
}

TEST_F(EditingDialogTest, ARefusalOfAFieldGivesItTheFocus) {
  for (const bool selectsAll : {false, true}) {
    TestEditor editor;
    editor.initial.end = {SaveOutcome::Refused, Refusal{.text = Text::ExpressionInvalid,
                                                        .field = Field::Expression,
                                                        .selectsAll = selectsAll}};
    Play(editor, [&] {
      QLineEdit* edit = Edit(expressionEdit);
      editor.Control(nameEdit)->setFocus();
      edit->setText("a + ");
      AnswerNextBox(Text::ExpressionInvalid, QMessageBox::Ok);
      Click(IDOK);
      EXPECT_EQ(editor.focusWidget(), edit);
      EXPECT_EQ(edit->selectedText(), selectsAll ? "a + " : "");
      Click(IDCANCEL);
    });
  }
}

TEST_F(EditingDialogTest, WhetherSomethingChangedStaysReadable) {
  TestEditor editor;
  Play(editor, [&] {
    editor.Form()->modified = true;
    Click(IDCANCEL);
  });
  EXPECT_TRUE(editor.m_modified);
  EXPECT_FALSE(editor.Form()) << "the form dies with the run";
}

TEST_F(EditingDialogTest, WithoutAFormItIsCancelledBeforeItIsShown) {
  TestEditor editor;
  editor.isMissing = true;
  EXPECT_EQ(editor.DoModal(), IDCANCEL);
  EXPECT_EQ(editor.shown, 0);
  EXPECT_FALSE(editor.m_modified);
}

TEST_F(EditingDialogTest, WithoutServicesItIsRefused) {
  QVClipboard* const clipboard = QVClipboard::Install(nullptr);
  EXPECT_EQ(TestEditor().DoModal(), -1);
  QVClipboard::Install(clipboard);
}

TEST_F(EditingDialogTest, RunDialogTellsConfirmationAndChange) {
  const auto end = [](bool isChanged, int button) {
    TestEditor editor;
    editor.initial.modified = isChanged;
    EditorEnd ended;
    Drive([&] { return ended = RunDialog(editor), 0; }, [&] { Click(button); });
    return ended;
  };
  EXPECT_EQ(end(true, IDOK), (EditorEnd{true, true}));
  EXPECT_EQ(end(false, IDOK), (EditorEnd{true, false}));
  EXPECT_EQ(end(false, IDCANCEL), (EditorEnd{false, false}));
}

}  // namespace
}  // namespace qv
