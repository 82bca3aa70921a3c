#include "ui/map/MapValueTable.h"

#include "ui/canvas/Palette.h"
#include "ui/canvas/ShortName.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kPadding = 8; // pixels beside a text in its column
constexpr int kLeastName = 60;

void cutName(QStyleOptionViewItem& option)
{
    const QFontMetrics& metrics = option.fontMetrics;
    const int width = option.rect.width() - kPadding;
    const QString name = shortName(option.text, [&metrics, width](const QString& text) { return metrics.horizontalAdvance(text) <= width; });
    option.text = name.isEmpty() ? metrics.elidedText(option.text, Qt::ElideMiddle, width) : name;
}

class NameDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(pOption, index);
        if (index.column() == MapValueModel::eName)
            cutName(*pOption);
    }
};

} // namespace

MapValueTable::MapValueTable(QWidget* pParent) : QTableView(pParent), mpModel(new MapValueModel(this))
{
    setObjectName(QStringLiteral("mapValues"));
    setAccessibleName(tr("Values at the view time"));
    const Palette::Map& colours = Palette::screen().map; // the same in every palette
    mpModel->setGround(colours.valueGround);
    setModel(mpModel);
    setStyleSheet(QStringLiteral("#mapValues {background-color: %1; color: %2; border: none; font-weight: bold;} "
                                 "#mapValues::item {padding: 0px 2px;}")
                      .arg(colours.valueGround.name(), colours.value.name()));
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setShowGrid(false);
    setWordWrap(false);
    setItemDelegate(new NameDelegate(this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setTabKeyNavigation(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setMinimumSize(80, 40);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void MapValueTable::setValues(std::vector<MapValue> values)
{
    const int rows = mpModel->rowCount();
    if (static_cast<int>(values.size()) != rows)
        mWidest = mUnits = 0;
    mpModel->setValues(std::move(values));
    fitColumns();
    if (mpModel->rowCount() != rows)
        updateGeometry(); // the size hint is another one
}

void MapValueTable::fitColumns()
{
    ensurePolished();
    const QFontMetrics metrics = fontMetrics();
    const auto widest = [&](auto member) {
        int width = 0;
        for (const MapValue& value : mpModel->values())
            width = std::max(width, metrics.horizontalAdvance(value.*member));
        return width > 0 ? width + kPadding : 0;
    };
    mWidest = std::max(mWidest, widest(&MapValue::text));
    mUnits = std::max(mUnits, widest(&MapValue::unit));
    const int mark = metrics.height() + kPadding / 2, unit = mUnits;
    const int name = viewport()->width() - mark - mWidest - unit;
    const int widths[] = {mark, std::clamp(name, kLeastName, std::max(widest(&MapValue::name), kLeastName)), mWidest, unit};
    for (int column = 0; column < MapValueModel::eColumns; ++column) {
        if (columnWidth(column) != widths[column])
            setColumnWidth(column, widths[column]);
    }
    if (verticalHeader()->defaultSectionSize() != metrics.height() + 4) {
        verticalHeader()->setDefaultSectionSize(metrics.height() + 4);
        updateGeometry();
    }
}

int MapValueTable::rowHeight() const
{
    return std::max(verticalHeader()->defaultSectionSize(), 1);
}

QSize MapValueTable::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    int name = kLeastName;
    for (const MapValue& value : mpModel->values())
        name = std::max(name, metrics.horizontalAdvance(value.name) + kPadding);
    const int width = columnWidth(MapValueModel::eState) + name + columnWidth(MapValueModel::eValue) + columnWidth(MapValueModel::eUnit);
    return {width + verticalScrollBar()->sizeHint().width(), mpModel->rowCount() * rowHeight()};
}

void MapValueTable::changeEvent(QEvent* pEvent)
{
    QTableView::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange) {
        mWidest = mUnits = 0;
        fitColumns();
    }
}

void MapValueTable::resizeEvent(QResizeEvent* pEvent)
{
    QTableView::resizeEvent(pEvent);
    fitColumns();
}

} // namespace ZARN
