#pragma once

#include "project/Session.h"
#include "ui/picture/Picture.h"

#include <QObject>

class QMenu;

namespace ZARN {

/// What can be done with the picture of a view: copied, saved as PNG, SVG or PDF under a name that tells what it shows, printed. Belongs to
/// the view's widget.
class PictureMenu : public QObject {
    Q_OBJECT

public:
    using Take = std::function<Picture()>;
    /// @param take makes the picture of that moment  @param about what it shows beside card and flight, as a part of a file's name
    PictureMenu(const Session& session, Take take, std::function<QString()> about, QWidget* pParent);

    void addTo(QMenu& menu);
    void copy() const;
    void save();
    void print();
    /// What a file of the picture is called, without a suffix.
    [[nodiscard]] QString name() const;

Q_SIGNALS:
    /// Something failed; a sentence for the user.
    void signalProblem(const QString& text);

private:
    [[nodiscard]] QString askFile();

    Session mSession;
    Take mTake;
    std::function<QString()> mAbout;
    QWidget* mpWindow;
};

} // namespace ZARN
