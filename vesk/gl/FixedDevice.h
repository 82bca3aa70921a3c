#pragma once

#include "vesk/gl/Device.h"

class QOpenGLFunctions_1_1;

namespace VESK::OpenGL {

/// The same drawing through the fixed functions of a compatibility context, vertex by vertex. Smooth lines have hard edges here.
class FixedDevice : public Device {
public:
    /// @return false where the context is no compatibility context; error() says so.
    bool init() override;
    void begin(const QSize& size, double ratio) override;
    void end() override;
    [[nodiscard]] GLint maskFormat() const override;

protected:
    void drawBatch(const Batch& batch, std::span<const Vertex> vertices) override;

private:
    QOpenGLFunctions_1_1* mpFixed = nullptr;
};

} // namespace VESK::OpenGL
