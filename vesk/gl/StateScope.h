#pragma once

#include <QOpenGLExtraFunctions>

#include <array>

namespace VESK::OpenGL {

/// Remembers the state of the current context that our drawing changes and puts it back when it goes, so that our drawing lives
/// beside the toolkit's painter and other users of the context.
class StateScope {
public:
    StateScope();
    ~StateScope();
    StateScope(const StateScope&) = delete;
    StateScope& operator=(const StateScope&) = delete;

private:
    [[nodiscard]] GLint integer(GLenum name) const;
    void enable(GLenum capability, bool on) const;

    static constexpr std::array<GLenum, 5> kCapabilities{GL_BLEND, GL_DEPTH_TEST, GL_STENCIL_TEST, GL_SCISSOR_TEST, GL_CULL_FACE};
    QOpenGLExtraFunctions* mpGl;
    bool mHasVertexArrays; // older compatibility contexts have none
    std::array<bool, kCapabilities.size()> mEnabled{};
    std::array<GLint, 4> mViewport{};
    std::array<GLint, 4> mScissor{};
    std::array<GLint, 4> mBlend{};
    std::array<GLfloat, 4> mClear{};
    GLint mProgram;
    GLint mVertexArray;
    GLint mBuffer;
    GLint mUnit;
    GLint mTexture = 0;
    GLint mAlignment;
    GLint mRowLength;
};

} // namespace VESK::OpenGL
