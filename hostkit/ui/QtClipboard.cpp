#include "hostkit/ui/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <algorithm>

namespace qv {

bool QtClipboard::PutToClipboard(const char* bytes, int size, int format) {
  if (format != TextFormat || size <= 0) {
    return false;
  }
  // The block's last byte is its terminator, which no other program wants in its text.
  QGuiApplication::clipboard()->setText(QString::fromUtf8(bytes, size - 1));
  return true;
}

int QtClipboard::GetFromClipboard(std::unique_ptr<char[]>& bytes, int format) const {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (format != TextFormat || !data || !data->hasText()) {
    return 0;
  }
  const QByteArray text = data->text().toUtf8();
  bytes = std::make_unique<char[]>(static_cast<std::size_t>(text.size()) + 1);
  std::copy(text.begin(), text.end(), bytes.get());
  return static_cast<int>(text.size()) + 1;
}

}  // namespace qv
