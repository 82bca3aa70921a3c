#pragma once

class QEvent;
class QObject;

namespace ZARN {

/// The key that copies is also the window's key for opening a card. Fields for text take it for themselves even when nothing in them is
/// selected; this leaves it to the window then. Tables decide for themselves.
class CopyKey {
public:
    /// Whether the event is the announcement of that key to a widget that has no text to copy; it is ignored then, and must go no further.
    static bool isLeftToWindow(const QObject* pReceiver, QEvent* pEvent);
};

} // namespace ZARN
