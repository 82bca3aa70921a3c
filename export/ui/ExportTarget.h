#pragma once

#include <QCoreApplication>

namespace ZARN {

class CardContainer;

/// The file that an export is going to write, before the work begins.
class ExportTarget {
    Q_DECLARE_TR_FUNCTIONS(ZARN::ExportTarget)

public:
    /// @param card the one whose record files no export may replace
    ExportTarget(const CardContainer& card, const QString& directory, const QString& name) : mCard(card), mDirectory(directory), mName(name) {}

    [[nodiscard]] QString path() const { return mDirectory + "/" + mName; }
    [[nodiscard]] bool exists() const;
    /// What keeps the file from being written, for people; empty when nothing does. Tries it with a file of another name.
    [[nodiscard]] QString problem() const;
    /// The same of what no trial finds out: that it is one of the card's recordings.
    [[nodiscard]] QString recordProblem() const;

private:
    const CardContainer& mCard;
    QString mDirectory;
    QString mName;
};

} // namespace ZARN
