#pragma once

#include <QProxyStyle>

namespace ZARN {

/// The toolkit's style but for what no style sheet can say.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT

public:
    ProgramStyle();

    int styleHint(StyleHint hint, const QStyleOption* pOption, const QWidget* pWidget, QStyleHintReturn* pReturn) const override;
};

} // namespace ZARN
