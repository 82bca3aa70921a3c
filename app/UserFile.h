#pragma once

#include <QDomDocument>
#include <QString>

#include <functional>
#include <set>

namespace ZARN {

class Console;

/// An XML file of the user's that the program reads and later writes anew: the settings, a project. What is there but could not be read
/// is never written over: before something takes its place it is put aside under a new name, and a listener is told. Owned by the
/// object whose file it is.
class UserFile {
public:
    enum class EEvent { ePutAside, eWritten, eNotWritten };
    /// @param path of the file; of ePutAside its new name.
    using Listener = std::function<void(EEvent event, const QString& path)>;

    explicit UserFile(const Console& console) : mConsole(console) {}

    void setListener(Listener listener) { mListener = std::move(listener); }

    /// @return false, with a console line and the document as it was, when the file cannot be opened or parsed.
    bool read(QDomDocument& document, const QString& path);
    /// @return false, with a console line and the old file in its place, when the document cannot be written or could not be read back,
    /// or when an unread file could not be put aside.
    bool write(const QDomDocument& document, const QString& path);

    /// Whether something is at that path that could not be read.
    [[nodiscard]] bool isUnread(const QString& path) const { return mUnread.contains(path); }
    /// Whether the last write succeeded; true before the first.
    [[nodiscard]] bool isWritten() const { return mWritten; }

    /// Whether something is at a path that writing would destroy. What cannot even be asked for counts; a device or a pipe does not.
    [[nodiscard]] static bool isThere(const QString& path);

    /// Renames what is at a path to "PATH.LABEL-1", or the next number that is free.
    /// @return the new name; empty when nothing is there or it cannot be renamed.
    static QString putAside(const QString& path, const QString& label);

private:
    bool makeRoom(const QString& path);
    void tell(EEvent event, const QString& path) const;

    const Console& mConsole;
    Listener mListener;
    std::set<QString> mUnread; ///< paths
    bool mWritten = true;
};

} // namespace ZARN
