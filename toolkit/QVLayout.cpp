#include "toolkit/QVLayout.h"

#include <algorithm>

#include "toolkit/Controls.h"
#include "toolkit/GroupBoxMargins.h"
#include "toolkit/Placement.h"

namespace {

constexpr LayoutSize wholeShare = 100;

QWidget* Resolve(const qv::LayoutControl& control, const QWidget* window) {
  if (const auto* widget = std::get_if<QWidget*>(&control)) {
    return *widget;
  }
  return window ? qv::FindControl(window, std::get<int>(control)) : nullptr;
}

QRect Shrunk(const QRect& rect, const QMargins& margins) {
  const QRect inside = rect.marginsRemoved(margins);
  return {inside.topLeft(), inside.size().expandedTo(QSize(0, 0))};
}

}  // namespace

QVLayout::QVLayout(QWidget* window, Qt::Orientation direction)
    : m_window(window), m_direction(direction) {}

QVLayout::~QVLayout() = default;

void QVLayout::SetBorders(LayoutSize first, LayoutSize second) {
  m_firstBorder = first;
  m_secondBorder = second;
}

void QVLayout::SetBoxControl(qv::LayoutControl box, LayoutSize margin, bool titled) {
  m_box = Box{box, margin, titled};
}

void QVLayout::AddGap(LayoutSize size) { m_items.push_back({{}, size, 0}); }

void QVLayout::AddControl(qv::LayoutControl control, LayoutSize size) {
  m_items.push_back({control, size, 0});
}

void QVLayout::AddLayout(QVLayout* layout, LayoutSize size) {
  m_items.push_back({layout, size, 0});
}

void QVLayout::AddOwned(std::unique_ptr<QVLayout> layout, LayoutSize size) {
  AddLayout(layout.get(), size);
  m_owned.push_back(std::move(layout));
}

void QVLayout::AddStack(const Stack& stack, Content content, LayoutSize size) {
  const bool ownHeight = m_direction == Qt::Vertical && !qv::IsShare(size);
  auto column = std::make_unique<QVVerticalLayout>(nullptr);
  column->AddControl(stack.label, stack.labelSize);
  column->AddGap(qv::PixelSize(stack.gapPixels));
  column->m_items.push_back({content, wholeShare, ownHeight ? size : LayoutSizeEdit});
  AddOwned(std::move(column), ownHeight ? 0 : size);
}

void QVLayout::AddControlAndLabel(qv::LayoutControl control, qv::LayoutControl label,
                                  LayoutSize size, int gapPixels, LayoutSize labelSize) {
  AddStack({label, labelSize, gapPixels}, control, size);
}

void QVLayout::AddControlAndLabelAndButton(qv::LayoutControl control, qv::LayoutControl label,
                                           qv::LayoutControl button, LayoutSize size,
                                           int buttonShare, int gapPixels) {
  const auto share = static_cast<LayoutSize>(std::clamp(buttonShare, 0, 100));
  auto row = std::make_unique<QVHoritzontalLayout>(nullptr);
  row->AddControl(control, wholeShare - share);
  row->AddGap(LayoutSizeStandard);
  row->AddControl(button, share);
  AddStack({label, LayoutSizeLabel, gapPixels}, row.get(), size);
  m_owned.push_back(std::move(row));
}

void QVLayout::AddControlWithBox(qv::LayoutControl control, qv::LayoutControl box, LayoutSize size,
                                 LayoutSize margin, bool titled) {
  auto inside = std::make_unique<QVVerticalLayout>(nullptr);
  inside->SetBoxControl(box, margin, titled);
  inside->AddControl(control, wholeShare);
  AddOwned(std::move(inside), size);
}

void QVLayout::Layout(const QRect& rect) { Place(rect, Outermost()); }

QSize QVLayout::FixedSize() const { return NaturalSize(Outermost()); }

qv::LayoutSizePair QVLayout::Pixels2Size(int pixels) {
  return {qv::PixelSize(pixels), qv::PixelSize(pixels)};
}

QSize QVLayout::Size2Pixels(LayoutSize size, const QWidget* window) {
  const qv::LayoutMetrics metrics = qv::MetricsOf(window);
  return {qv::GapPixels(size, metrics), qv::ItemPixels(size, metrics)};
}

QWidget* QVLayout::NearestWindow() const {
  if (m_window) {
    return m_window;
  }
  for (const Item& item : m_items) {
    QWidget* window = nullptr;
    if (QVLayout* layout = LayoutOf(item)) {
      window = layout->NearestWindow();
    } else if (const auto* control = std::get_if<qv::LayoutControl>(&item.content)) {
      const QWidget* widget = Resolve(*control, nullptr);
      window = widget ? widget->parentWidget() : nullptr;
    }
    if (window) {
      return window;
    }
  }
  return nullptr;
}

QVLayout::Frame QVLayout::Outermost() const {
  QWidget* window = NearestWindow();
  return {window, qv::MetricsOf(window)};
}

QVLayout::Frame QVLayout::Inner(const Frame& outer) const {
  return {m_window ? m_window : outer.window, outer.metrics};
}

QWidget* QVLayout::BoxWidget(const Frame& here) const {
  return m_box ? Resolve(m_box->control, here.window) : nullptr;
}

QMargins QVLayout::Margins(const Frame& here) const {
  const int first = qv::GapPixels(m_firstBorder, here.metrics);
  const int second = qv::GapPixels(m_secondBorder, here.metrics);
  const QMargins borders =
      m_direction == Qt::Vertical ? QMargins(first, 0, second, 0) : QMargins(0, first, 0, second);
  if (!m_box) {
    return borders;
  }
  const int margin = qv::GapPixels(m_box->margin, here.metrics);
  return borders + qv::GroupBoxMargins(BoxWidget(here), margin, m_box->titled);
}

int QVLayout::Along(QSize size) const {
  return m_direction == Qt::Vertical ? size.height() : size.width();
}

int QVLayout::Across(QSize size) const { return Along(size.transposed()); }

QVLayout* QVLayout::LayoutOf(const Item& item) {
  const auto* layout = std::get_if<QVLayout*>(&item.content);
  return layout ? *layout : nullptr;
}

bool QVLayout::IsNatural(const Item& item) const {
  return item.size == 0 && m_direction == Qt::Vertical &&
         std::holds_alternative<QVLayout*>(item.content);
}

std::vector<QSize> QVLayout::Needs(const Frame& here) const {
  std::vector<QSize> needs;
  for (const Item& item : m_items) {
    const int least = qv::ItemPixels(item.least, here.metrics);
    const QVLayout* layout = LayoutOf(item);
    const QSize natural = layout ? layout->NaturalSize(here) : QSize(0, 0);
    needs.push_back(
        natural.expandedTo(m_direction == Qt::Vertical ? QSize(0, least) : QSize(least, 0)));
  }
  return needs;
}

int QVLayout::FixedExtent(const Item& item, QSize need, const Frame& here) const {
  if (std::holds_alternative<std::monostate>(item.content)) {
    return qv::GapPixels(item.size, here.metrics);
  }
  int pixels = qv::ItemPixels(item.size, here.metrics);
  if (item.size == LayoutSizeEdit && LayoutOf(item) && m_direction == Qt::Vertical) {
    pixels += here.metrics.label + qv::labelDistance;
  }
  return std::max(pixels, Along(need));
}

std::vector<qv::LayoutShare> QVLayout::Shares(const std::vector<QSize>& needs,
                                              const Frame& here) const {
  std::vector<qv::LayoutShare> shares;
  for (std::size_t i = 0; i < m_items.size(); ++i) {
    const Item& item = m_items[i];
    if (qv::IsShare(item.size) && !IsNatural(item)) {
      shares.push_back({static_cast<int>(item.size), true});
    } else {
      shares.push_back({FixedExtent(item, needs[i], here), false});
    }
  }
  return shares;
}

int QVLayout::RoomAlong(const std::vector<QSize>& needs, const Frame& here) const {
  const std::vector<qv::LayoutShare> shares = Shares(needs, here);
  const int whole = qv::WholeOf(shares);
  int fixed = 0;
  int shared = 0;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    if (shares[i].percent) {
      shared = std::max(shared, qv::RoomForShare(Along(needs[i]), shares[i].amount, whole));
    } else {
      fixed += shares[i].amount;
    }
  }
  return fixed + shared;
}

QSize QVLayout::NaturalSize(const Frame& outer) const {
  const Frame here = Inner(outer);
  const std::vector<QSize> needs = Needs(here);
  int across = 0;
  for (const QSize need : needs) {
    across = std::max(across, Across(need));
  }
  const int along = RoomAlong(needs, here);
  const QSize content = m_direction == Qt::Vertical ? QSize(across, along) : QSize(along, across);
  return content.grownBy(Margins(here));
}

void QVLayout::Place(const QRect& rect, const Frame& outer) const {
  const Frame here = Inner(outer);
  if (QWidget* box = BoxWidget(here)) {
    qv::PlaceWidget(box, rect, here.window);
    qv::PutBehind(box);
  }
  const QRect inside = Shrunk(rect, Margins(here));
  const auto spans = qv::DivideExtent(Along(inside.size()), Shares(Needs(here), here));
  for (std::size_t i = 0; i < spans.size(); ++i) {
    PlaceItem(m_items[i], ItemRect(inside, spans[i]), here);
  }
}

QRect QVLayout::ItemRect(const QRect& inside, qv::LayoutSpan span) const {
  return m_direction == Qt::Vertical
             ? QRect(inside.left(), inside.top() + span.offset, inside.width(), span.length)
             : QRect(inside.left() + span.offset, inside.top(), span.length, inside.height());
}

void QVLayout::PlaceItem(const Item& item, const QRect& rect, const Frame& here) {
  if (const QVLayout* layout = LayoutOf(item)) {
    layout->Place(rect, here);
  } else if (const auto* control = std::get_if<qv::LayoutControl>(&item.content)) {
    if (QWidget* widget = Resolve(*control, here.window)) {
      qv::PlaceWidget(widget, rect, here.window);
    }
  }
}

QVVerticalLayout::QVVerticalLayout(QWidget* window) : QVLayout(window, Qt::Vertical) {}

QVHoritzontalLayout::QVHoritzontalLayout(QWidget* window) : QVLayout(window, Qt::Horizontal) {}
