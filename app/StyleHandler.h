#pragma once

#include <QString>
#include <QStringList>

#include <map>

/// Reads the program's style sheets: widget style sheets with one block named "Variables" more, whose values the rest of the sheet
/// refers to as "$(name)". Holds the sheet that was read last. The program's own object lives until the process ends.
class StyleHandler {
public:
    using Properties = std::map<QString, QString>;

    static StyleHandler& instance();
    /// The sheet with "$(name)" replaced by the values.
    [[nodiscard]] static QString insert(QString sheet, const Properties& variables);

    /// Reads a file or a resource. @return the sheet without comments and with all known variables in place; empty when the file
    /// cannot be read.
    QString readStyle(const QString& path);
    /// What the sheets that are read from now on may refer to beside their own variables, which come first.
    void setShared(const Properties& variables) { mShared = variables; }
    /// What the sheet refers to although nobody has defined it.
    [[nodiscard]] QStringList unknown() const;
    /// The sheet that was read last.
    [[nodiscard]] const QString& styleSheet() const { return mStyleSheet; }
    /// The value of a variable; empty when there is none of that name.
    [[nodiscard]] QString getParameter(const QString& name) const;

private:
    void readSection(const QString& piece);
    void readVariables(const QString& body);
    void readEntry(const QString& name, const QString& body);

    QString mStyleSheet;
    Properties mVariables;
    Properties mShared;
    std::map<QString, Properties> mEntries; ///< properties by block
};
