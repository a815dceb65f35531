#pragma once

#include <optional>
#include <vector>

#include "discriminator/Containers.h"
#include "timestructure/SlotFaults.h"
#include "tools/Colour.h"
#include "tools/XmlNode.h"

namespace qv {

/// A row of the slots of a day type.
struct SlotRow {
  QVWideString hourType;  ///< name of its hour type
  Colour colour = 0;      ///< of its hour type
  QVWideString from;      ///< as shown: "00:00" where the document has another form
  QVWideString to;

  friend bool operator==(const SlotRow&, const SlotRow&) = default;
};

/// `text` if it has the form of a time ("07:30", any digits), and "00:00" for any other text.
QVWideString NormalizeTime(const QVWideString& text);

/// The slots of one day type: in its document, in the order in which they were made, and as rows.
/// The k-th row is that of the k-th slot.
class DaySlots {
 public:
  /// Both nodes outlive the slots.
  DaySlots(XmlNode& day, HourTypes hourTypes);

  /// Reads the rows anew, and removes from the document, in silence, the slots whose hour type is
  /// no more. Nothing else drops a slot.
  void Fill();
  const std::vector<SlotRow>& Rows() const { return m_rows; }

  /// The slot of a row, or null if there is no such row.
  XmlNode* SlotOfRow(int row);

  /// Removes the row and its slot.
  void Remove(int row);

  /// What is wrong with the first row that is wrong, as shown; gaps are no fault.
  [[nodiscard]] std::optional<SlotFault> FirstFault() const;
  /// Whether rows without a fault leave no minute of the day free.
  [[nodiscard]] bool IsCovered() const;
  /// The minutes that they leave free.
  std::vector<MinuteRange> Gaps() const { return GapsOfSlots(Ranges()); }

 private:
  std::vector<SlotRange> Ranges() const;

  XmlNode& m_day;
  HourTypes m_hourTypes;
  std::vector<SlotRow> m_rows;
};

}  // namespace qv
