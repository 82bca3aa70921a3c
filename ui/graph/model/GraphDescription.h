#pragma once

#include "ui/graph/model/GraphModel.h"

#include <QCoreApplication>

namespace ZARN {

/// What a graph shows, in words: its window, what the traces have at the cursor and between the ends of the window, what is marked and which
/// incidents lie in it.
class GraphDescription {
    Q_DECLARE_TR_FUNCTIONS(ZARN::GraphDescription)

public:
    explicit GraphDescription(const GraphModel& model) : mModel(model) {}
    [[nodiscard]] QString text() const;

private:
    [[nodiscard]] QString time(double seconds) const;
    [[nodiscard]] QString traces() const;
    [[nodiscard]] QString incidents() const;

    const GraphModel& mModel;
};

} // namespace ZARN
