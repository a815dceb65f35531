#include "tests/editor/ui/EditorFixture.h"

namespace qv {
namespace {

class SwitchedType : public Editor {
 protected:
  /// The places of the visible links in an editor of a file of this type.
  QList<QRect> PlacesAtOpening(const char* type) {
    QList<QRect> places;
    const QString path =
        PutFile("1.old.xdct",
                QByteArray("<main><id>1</id><name>old</name><type>") + type + "</type></main>");
    Modify(path, [&] {
      places = PlacesOfLinks();
      Click(IDCANCEL);
    });
    return places;
  }

  static QList<QRect> PlacesOfLinks() {
    QList<QRect> places;
    for (const int link : {hourTypesLink, dayTypesLink, calendarLink, conditionsLink}) {
      if (TopControl(link)->isVisible()) {
        places += TopControl(link)->geometry();
      }
    }
    return places;
  }
};

TEST_F(SwitchedType, HasItsLinksWhereItsOwnEditorHasThem) {
  const auto ofSlots = PlacesAtOpening("SLOTS");
  const auto ofConditions = PlacesAtOpening("CONDITIONS");
  ASSERT_EQ(ofSlots.size(), 3);
  ASSERT_EQ(ofConditions.size(), 1);
  const auto expectAfter = [](Qt::Key key, const QList<QRect>& places) {
    Press(typeCombo, key);
    EXPECT_EQ(PlacesOfLinks(), places);
  };
  Modify(PutOldFile(), [&] {
    expectAfter(Qt::Key_Down, ofConditions);
    TopControl(hourTypesLink)->setGeometry(QRect());
    expectAfter(Qt::Key_Up, ofSlots);
    TopControl(conditionsLink)->setGeometry(QRect());
    expectAfter(Qt::Key_Down, ofConditions);
    Click(IDCANCEL);
  });
}

}  // namespace
}  // namespace qv
