#include "toolkit/CDialog.h"

#include <QLabel>
#include <QLineEdit>

#include "tests/support/DialogTest.h"
#include "tests/toolkit/PictureFiles.h"
#include "toolkit/CImageButton.h"
#include "toolkit/Controls.h"

namespace qv {
namespace {

constexpr int label = 10;
constexpr int edit = 11;

template <class Widget>
void AddControl(QDialog* dialog, int id, const QRect& units) {
  auto* control = new Widget(dialog);
  control->setProperty(controlIdProperty, id);
  control->setGeometry(units);
}

void BuildFixed(QDialog* dialog) {
  dialog->resize(200, 100);
  AddControl<QLabel>(dialog, label, {7, 7, 80, 8});
  AddControl<QLineEdit>(dialog, edit, {7, 20, 80, 14});
  AddControl<CImageButton>(dialog, IDOK, {7, 40, 50, 14});
  AddControl<CImageButton>(dialog, IDCANCEL, {60, 40, 50, 14});
}

void BuildSizable(QDialog* dialog) {
  BuildFixed(dialog);
  dialog->setProperty("sizable", true);
}

/// What stands for the controls of a template.
struct TestTemplate {
  void (*build)(QDialog*);

  void setupUi(QDialog* dialog) const { build(dialog); }
};

/// Writes down what is called, in order.
class TestDialog : public CDialog {
 public:
  explicit TestDialog(void (*build)(QDialog*) = BuildFixed, QWidget* parent = nullptr)
      : CDialog(parent) {
    const TestTemplate controls{build};
    Build(controls);
  }

  QStringList calls;
  int positionings = 0;
  std::optional<int> refusal;
  bool endAtOnce = false;
  bool keepSize = false;

 protected:
  std::optional<int> OnCreate() override {
    calls << "create";
    const auto missing = CDialog::OnCreate();
    return missing ? missing : refusal;
  }
  void OnInitDialog() override {
    calls << "init";
    SetTitle(Text::Discriminators);
    SetLabel(Control(label), Control(edit), Text::Name);
    SetButton(Control(IDOK), Text::Ok, L"OK-16.png");
    if (keepSize) {
      KeepAsLeastSize();
    }
    if (endAtOnce) {
      EndDialog(7);
    }
  }
  void PositioningControls() override { ++positionings; }
  void OnOK() override {
    calls << "ok";
    CDialog::OnOK();
  }
  void OnCancel() override {
    calls << "cancel";
    CDialog::OnCancel();
  }
  void OnDestroy() override { calls << "destroy"; }
};

class CDialogTest : public DialogTest {
 protected:
  static QColor IconColour() {
    return TopWindow()->windowIcon().pixmap(32, 32).toImage().pixelColor(3, 3);
  }

  TestDialog dialog;
};

TEST_F(CDialogTest, NothingIsShownByTheConstructor) { EXPECT_FALSE(dialog.isVisible()); }

TEST_F(CDialogTest, ControlOneEndsWithOkAndControlTwoWithCancel) {
  EXPECT_EQ(Play(dialog, [] { Click(IDOK); }), IDOK);
  EXPECT_EQ(dialog.calls, QStringList({"create", "init", "ok", "destroy"}));
  TestDialog second;
  EXPECT_EQ(Play(second, [] { Click(IDCANCEL); }), IDCANCEL);
  EXPECT_EQ(second.calls, QStringList({"create", "init", "cancel", "destroy"}));
}

TEST_F(CDialogTest, ReturnIsControlOneWhereverTheFocusIs) {
  EXPECT_EQ(Play(dialog, [] { Press(edit, Qt::Key_Return); }), IDOK);
  TestDialog second;
  EXPECT_EQ(Play(second,
                 [] {
                   TopControl(edit)->setFocus();
                   QTest::keyClick(TopWindow(), Qt::Key_Enter);
                 }),
            IDOK);
}

TEST_F(CDialogTest, ReturnOnAFocusedButtonPressesThatButton) {
  EXPECT_EQ(Play(dialog,
                 [] {
                   TopControl(IDCANCEL)->setFocus(Qt::TabFocusReason);
                   QTest::keyClick(TopControl(IDCANCEL), Qt::Key_Return);
                 }),
            IDCANCEL);
  TestDialog second;
  EXPECT_EQ(Play(second,
                 [] {
                   TopControl(IDCANCEL)->setFocus(Qt::TabFocusReason);
                   TopControl(edit)->setFocus(Qt::TabFocusReason);
                   QTest::keyClick(TopControl(edit), Qt::Key_Return);
                 }),
            IDOK);
}

TEST_F(CDialogTest, ALabelLeadsToItsControl) {
  Play(dialog, [&] {
    auto* caption = qobject_cast<QLabel*>(TopControl(label));
    EXPECT_EQ(caption->buddy(), TopControl(edit));
    Click(IDOK);
  });
}

TEST_F(CDialogTest, WhatIsOpenedByKeyboardShowsItsFocus) {
  for (const bool byKeyboard : {false, true}) {
    QWidget parent;
    parent.setAttribute(Qt::WA_KeyboardFocusChange, byKeyboard);
    TestDialog child(BuildFixed, &parent);
    Play(child, [&] {
      EXPECT_EQ(child.testAttribute(Qt::WA_KeyboardFocusChange), byKeyboard);
      Click(IDOK);
    });
  }
}

TEST_F(CDialogTest, EscapeAndTheCloseBoxCancel) {
  EXPECT_EQ(Play(dialog, [] { QTest::keyClick(TopWindow(), Qt::Key_Escape); }), IDCANCEL);
  TestDialog second;
  EXPECT_EQ(Play(second, [] { TopWindow()->close(); }), IDCANCEL);
  EXPECT_EQ(second.calls, QStringList({"create", "init", "cancel", "destroy"}));
}

TEST_F(CDialogTest, ARefusalIsTheResultAndNothingIsShown) {
  dialog.refusal = IDCANCEL;
  EXPECT_EQ(dialog.DoModal(), IDCANCEL);
  EXPECT_EQ(dialog.calls, QStringList({"create"}));
}

TEST_F(CDialogTest, WithoutServicesTheResultIsMinusOne) {
  QVLoadString::Install(nullptr);
  EXPECT_EQ(dialog.DoModal(), -1);
  EXPECT_EQ(dialog.calls, QStringList({"create"}));
}

TEST_F(CDialogTest, EndingDuringTheStartNeverShowsTheDialog) {
  dialog.endAtOnce = true;
  EXPECT_EQ(dialog.DoModal(), 7);
  EXPECT_EQ(dialog.calls, QStringList({"create", "init", "destroy"}));
}

TEST_F(CDialogTest, DestroyingTheParentEndsTheLoop) {
  auto* parent = new QWidget;
  auto* child = new TestDialog;
  child->setParent(parent, child->windowFlags());
  EXPECT_EQ(Play(*child, [=] { delete parent; }), IDCANCEL);
}

TEST_F(CDialogTest, ADialogHasAFixedSizeUnlessItsTemplateIsSizable) {
  Play(dialog, [] {
    EXPECT_EQ(TopWindow()->minimumSize(), TopWindow()->maximumSize());
    Click(IDOK);
  });
  TestDialog sizable(BuildSizable);
  Play(sizable, [] {
    const QSize size = TopWindow()->size();
    TopWindow()->resize(size + QSize(50, 60));
    EXPECT_EQ(TopWindow()->size(), size + QSize(50, 60));
    EXPECT_TRUE(TopWindow()->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    Click(IDOK);
  });
}

TEST_F(CDialogTest, EachNewSizePlacesTheControlsAgain) {
  TestDialog sizable(BuildSizable);
  Play(sizable, [&] {
    const int before = sizable.positionings;
    TopWindow()->resize(600, 400);
    Settle();
    EXPECT_EQ(sizable.positionings, before + 1);
    Click(IDOK);
  });
}

TEST_F(CDialogTest, TheSizeThatIsKeptIsTheLeastOne) {
  TestDialog sizable(BuildSizable);
  sizable.keepSize = true;
  Play(sizable, [] {
    const QSize opening = TopWindow()->size();
    TopWindow()->resize(10, 10);
    EXPECT_EQ(TopWindow()->size(), opening);
    Click(IDOK);
  });
}

TEST_F(CDialogTest, TemplateUnitsFollowTheFont) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPixelSize(2 * QFontInfo(before).pixelSize());
  QApplication::setFont(large);
  const TestDialog big;
  QApplication::setFont(before);
  EXPECT_NEAR(big.width(), 2 * dialog.width(), dialog.width() / 10);
  EXPECT_NEAR(big.Control(edit)->height(), 2 * dialog.Control(edit)->height(), 4);
}

TEST_F(CDialogTest, TextsComeByNumberAndImagesFromTheHostsDirectory) {
  const PictureFiles images;
  images.Write("OK-16.png", 16, Qt::green);
  host->setup.imagePath = images.Directory();
  Play(dialog, [] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::Discriminators));
    EXPECT_EQ(Caption(label), TitleOf(Text::Name));
    EXPECT_EQ(TopControl<QLabel>(label)->textFormat(), Qt::PlainText);
    EXPECT_EQ(TopControl(edit)->accessibleName(), TitleOf(Text::Name));
    EXPECT_FALSE(TopControl<CImageButton>(IDOK)->icon().isNull());
    Click(IDOK);
  });
}

TEST_F(CDialogTest, TheIconIsTheHostsPictureByTheLowSixteenBits) {
  const PictureFiles images;
  images.Write("PROGRAM-5.png", 32, Qt::red);
  host->setup.imagePath = images.Directory();
  host->setup.programIcon = 0x70005;
  Play(dialog, [] {
    EXPECT_EQ(IconColour(), QColor(Qt::red));
    Click(IDOK);
  });
}

TEST_F(CDialogTest, WithoutThatPictureTheIconIsTheApplications) {
  const PictureFiles images;
  host->setup.imagePath = images.Directory();
  QPixmap picture(32, 32);
  picture.fill(Qt::blue);
  QApplication::setWindowIcon(picture);
  Play(dialog, [] {
    EXPECT_EQ(IconColour(), QColor(Qt::blue));
    Click(IDOK);
  });
  QApplication::setWindowIcon(QIcon());
}

TEST_F(CDialogTest, AControlThatIsMissingIsNull) { EXPECT_EQ(dialog.Control(999), nullptr); }

}  // namespace
}  // namespace qv
