#include "ui/graph/model/GraphKeys.h"

#include "ui/graph/model/GraphCommand.h"

#include <QCoreApplication>
#include <QKeySequence>

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kPage = 0.9, kStep = 0.1; // of the window, and of the span of values

constexpr auto kCursor = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Cursor by a pixel of time, with Shift by ten");
constexpr auto kLevel = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Height of the cursor by a pixel, with Shift by ten");
constexpr auto kStart =
    QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Start of the marker by a pixel, with Shift by ten; without a marker from the cursor");
constexpr auto kEnd =
    QT_TRANSLATE_NOOP("ZARN::GraphKeys", "End of the marker by a pixel, with Shift by ten; without a marker from the cursor");
constexpr auto kNone = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Take the marker away");
constexpr auto kZoomMarker = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Show what is marked");
constexpr auto kTime = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Look closer or from farther away in time, about the cursor");
constexpr auto kPages = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "A page back or on in time");
constexpr auto kEdges = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Start or end of the record");
constexpr auto kAll = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "The whole record");
constexpr auto kChoose =
    QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Choose the trace above or below: it stands out, and the keys for values are for it");
constexpr auto kValues = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Scale of the chosen trace up or down");
constexpr auto kZoomValues = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Look closer or from farther away at the values of the chosen trace");
constexpr auto kFit = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Fit the scales to what is visible; once more: to the whole record");
constexpr auto kShared = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "One scale for the traces of each unit, or one for each trace");
constexpr auto kStrip = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Strip of the chosen trace up or down");
constexpr auto kHeight = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Strip of the chosen trace higher or lower");
constexpr auto kGhost = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "What it is compared with earlier or later by a pixel, with Ctrl by ten");
constexpr auto kScroll = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Scroll the table of the marker, or a legend that is cut");
constexpr auto kUndo = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Take back what changed view, scales, marker or layout");
constexpr auto kRedo = QT_TRANSLATE_NOOP("ZARN::GraphKeys", "Do it again");

} // namespace

const std::vector<GraphKey>& GraphKey::all()
{
    using enum EGraphKey;
    static const std::vector<GraphKey> keys{
        {eCursorTime, -1, "Left", kCursor},
        {eCursorTime, 1, "Right", kCursor},
        {eCursorValue, -1, "Up", kLevel},
        {eCursorValue, 1, "Down", kLevel},
        {eZoomTime, 0.8, "+", kTime},
        {eZoomTime, 1.25, "-", kTime},
        {ePan, -kPage, "PgUp", kPages},
        {ePan, kPage, "PgDown", kPages},
        {eEdge, -1, "Home", kEdges},
        {eEdge, 1, "End", kEdges},
        {eCommand, eZoomAll, "Ctrl+1", kAll},
        {eMarkerStart, -1, "Alt+Left", kStart},
        {eMarkerStart, 1, "Alt+Right", kStart},
        {eMarkerEnd, -1, "Ctrl+Left", kEnd},
        {eMarkerEnd, 1, "Ctrl+Right", kEnd},
        {eCommand, eZoomMarker, "Return", kZoomMarker},
        {eNoMarker, 0, "Esc", kNone},
        {eChoose, -1, "Alt+PgUp", kChoose},
        {eChoose, 1, "Alt+PgDown", kChoose},
        {eValues, kStep, "Alt+Up", kValues},
        {eValues, -kStep, "Alt+Down", kValues},
        {eZoomValues, 0.8, "Alt++", kZoomValues},
        {eZoomValues, 1.25, "Alt+-", kZoomValues},
        {eCommand, eFitValues, "Ctrl+0", kFit},
        {eCommand, eSharedScale, "Ctrl+U", kShared},
        {eMoveStrip, -1, "Ctrl+PgUp", kStrip},
        {eMoveStrip, 1, "Ctrl+PgDown", kStrip},
        {eStripHeight, 1.25, "Ctrl++", kHeight},
        {eStripHeight, 0.8, "Ctrl+-", kHeight},
        {eGhost, -1, ",", kGhost},
        {eGhost, 1, ".", kGhost},
        {eGhost, -10, "Ctrl+,", kGhost},
        {eGhost, 10, "Ctrl+.", kGhost},
        {eScroll, -1, "Shift+PgUp", kScroll},
        {eScroll, 1, "Shift+PgDown", kScroll},
        {eCommand, eUndo, "Ctrl+Z", kUndo},
        {eCommand, eRedo, "Ctrl+Shift+Z", kRedo},
        {eCommand, eRedo, "Ctrl+Y", kRedo},
    };
    return keys;
}

const GraphKey* GraphKey::find(int key, Qt::KeyboardModifiers modifiers)
{
    const int code = key == Qt::Key_Enter ? Qt::Key_Return : key == Qt::Key_Equal ? Qt::Key_Plus : key; // of plus, where it wants Shift
    modifiers &= Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const auto of = [&](Qt::KeyboardModifiers held) -> const GraphKey* {
        const QKeySequence wanted(QKeyCombination(held, static_cast<Qt::Key>(code)));
        const auto found = std::ranges::find_if(all(), [&](const GraphKey& entry) { return QKeySequence(entry.keys) == wanted; });
        return found == all().end() ? nullptr : &*found;
    };
    const GraphKey* pExact = of(modifiers);
    return pExact ? pExact : of(modifiers & ~Qt::ShiftModifier);
}

std::vector<std::pair<QString, QString>> GraphKey::descriptions()
{
    std::vector<std::pair<QString, QString>> rows;
    const char* pLast = nullptr;
    for (const GraphKey& entry : all()) {
        const QString keys = QKeySequence(entry.keys).toString(QKeySequence::NativeText);
        if (entry.text == pLast)
            rows.back().first += QStringLiteral(", ") + keys;
        else
            rows.emplace_back(keys, QCoreApplication::translate("ZARN::GraphKeys", entry.text));
        pLast = entry.text;
    }
    return rows;
}

} // namespace ZARN
