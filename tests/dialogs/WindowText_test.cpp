#include "tests/support/WindowText.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <algorithm>
#include <functional>

#include "tests/support/NamedCase.h"

namespace qv {
namespace {

/// A window of one control of each kind. What is changed before it is read shows in its text.
class PlainWindow {
 public:
  PlainWindow() {
    list.setHeaderLabels({"column", "other"});
    new QTreeWidgetItem(&list, {"row", "text"});
    combo.addItems({"entry", "choice"});
    label.setBuddy(&edit);
    int number = 1;
    for (QWidget* control : std::initializer_list<QWidget*>{&label, &edit, &combo, &check, &list,
                                                            &box, &button, &other}) {
      control->setProperty("controlId", number);
      control->setGeometry(10, 30 * number, 100, 20);
      ++number;
    }
    SetPicture("plain.png", Qt::red);
    SetPicture("changed.png", Qt::blue);
    ShowPicture("plain.png");
    window.resize(400, 300);
  }

  void ShowPicture(const char* file) {
    button.setIcon(QIcon(pictures.filePath(QLatin1String(file))));
  }

  std::vector<std::string> Text() { return WindowText(window, QDir(pictures.path())); }

  const QTemporaryDir pictures;
  QDialog window;
  QLabel label{"label", &window};
  QLineEdit edit{"typed", &window};
  QComboBox combo{&window};
  QCheckBox check{"check", &window};
  QTreeWidget list{&window};
  QGroupBox box{"box", &window};
  QPushButton button{"button", &window};
  QPushButton other{"other", &window};

 private:
  void SetPicture(const char* file, const QColor& colour) const {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(colour);
    image.save(pictures.filePath(QLatin1String(file)));
  }
};

struct Change : NamedCase {
  std::function<void(PlainWindow&)> make;
  const char* shown;  ///< the line that tells of it, from its start
};

class ChangedWindow : public testing::TestWithParam<Change> {};

TEST_P(ChangedWindow, ShowsInItsText) {
  const auto shown = [](const std::string& line) { return line.starts_with(GetParam().shown); };
  PlainWindow before;
  const auto plain = before.Text();
  EXPECT_TRUE(std::none_of(plain.begin(), plain.end(), shown));
  PlainWindow after;
  GetParam().make(after);
  const auto changed = after.Text();
  EXPECT_TRUE(std::any_of(changed.begin(), changed.end(), shown))
      << testing::PrintToString(changed);
}

INSTANTIATE_TEST_SUITE_P(
    Changes, ChangedWindow,
    testing::Values(
        Change{{"Title"}, [](auto& w) { w.window.setWindowTitle("new"); }, "window \"new\""},
        Change{{"Size"}, [](auto& w) { w.window.resize(401, 300); }, "window \"\" 401x300"},
        Change{
            {"LeastSize"}, [](auto& w) { w.window.setMinimumSize(99, 88); }, "least window 99x88"},
        Change{{"Label"}, [](auto& w) { w.label.setText("new"); }, "1 QLabel \"new\" of 2"},
        Change{{"Buddy"}, [](auto& w) { w.label.setBuddy(&w.combo); }, "1 QLabel \"label\" of 3"},
        Change{{"TextOfAnEdit"}, [](auto& w) { w.edit.setText("new"); }, "2 QLineEdit \"new\""},
        Change{{"Limit"}, [](auto& w) { w.edit.setMaxLength(12); }, "2 limit 12"},
        Change{{"Digits"},
               [](auto& w) {
                 w.edit.setValidator(new QRegularExpressionValidator(
                     QRegularExpression(QStringLiteral("[0-9]*")), &w.edit));
               },
               "2 no limit digits only"},
        Change{{"Entry"}, [](auto& w) { w.combo.setItemText(1, "new"); }, "3 entry 1 \"new\""},
        Change{{"CurrentEntry"},
               [](auto& w) { w.combo.setCurrentIndex(1); },
               "3 entry 1 \"choice\" current"},
        Change{{"Tick"}, [](auto& w) { w.check.setChecked(true); }, "4 QCheckBox \"check\" ticked"},
        Change{{"Heading"},
               [](auto& w) { w.list.headerItem()->setText(0, "new"); },
               "5 column 0 \"new\" wide"},
        Change{{"ColumnWidth"},
               [](auto& w) { w.list.header()->resizeSection(0, 33); },
               "5 column 0 \"column\" wide 33"},
        Change{{"Row"},
               [](auto& w) { w.list.topLevelItem(0)->setText(1, "new"); },
               "5 row 0 \"row\" \"new\""},
        Change{{"SelectedRow"},
               [](auto& w) { w.list.topLevelItem(0)->setSelected(true); },
               "5 row 0 \"row\" \"text\" selected"},
        Change{{"Box"}, [](auto& w) { w.box.setTitle("new"); }, "6 QGroupBox \"new\""},
        Change{{"Picture"},
               [](auto& w) { w.ShowPicture("changed.png"); },
               "7 QPushButton \"button\" picture changed.png"},
        Change{{"Default"},
               [](auto& w) { w.other.setDefault(true); },
               "8 QPushButton \"other\" default"},
        Change{
            {"Disabled"}, [](auto& w) { w.box.setEnabled(false); }, "6 QGroupBox \"box\" disabled"},
        Change{{"Hidden"}, [](auto& w) { w.box.hide(); }, "6 QGroupBox \"box\" hidden"},
        Change{{"TabOrder"},
               [](auto& w) { QWidget::setTabOrder(&w.other, &w.button); },
               "7 QPushButton \"button\" picture plain.png tab 6"},
        Change{{"Focus"}, [](auto& w) { w.combo.setFocus(); }, "3 QComboBox tab 2 focused"},
        Change{{"Place"},
               [](auto& w) { w.box.setGeometry(1, 2, 3, 4); },
               "6 QGroupBox \"box\" at 1,2 3x4"}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace qv
