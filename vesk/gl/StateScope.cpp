#include "vesk/gl/StateScope.h"

#include <QOpenGLContext>

namespace VESK::OpenGL {

StateScope::StateScope()
    : mpGl(QOpenGLContext::currentContext()->extraFunctions()),
      mHasVertexArrays(QOpenGLContext::currentContext()->format().majorVersion() >= 3), mProgram(integer(GL_CURRENT_PROGRAM)),
      mVertexArray(mHasVertexArrays ? integer(GL_VERTEX_ARRAY_BINDING) : 0), mBuffer(integer(GL_ARRAY_BUFFER_BINDING)), mUnit(integer(GL_ACTIVE_TEXTURE)),
      mAlignment(integer(GL_UNPACK_ALIGNMENT)), mRowLength(integer(GL_UNPACK_ROW_LENGTH))
{
    for (std::size_t i = 0; i < kCapabilities.size(); ++i)
        mEnabled[i] = mpGl->glIsEnabled(kCapabilities[i]) == GL_TRUE;
    mpGl->glGetIntegerv(GL_VIEWPORT, mViewport.data());
    mpGl->glGetIntegerv(GL_SCISSOR_BOX, mScissor.data());
    mpGl->glGetFloatv(GL_COLOR_CLEAR_VALUE, mClear.data());
    mBlend = {integer(GL_BLEND_SRC_RGB), integer(GL_BLEND_DST_RGB), integer(GL_BLEND_SRC_ALPHA), integer(GL_BLEND_DST_ALPHA)};
    // Our own drawing uses the first unit alone.
    mpGl->glActiveTexture(GL_TEXTURE0);
    mTexture = integer(GL_TEXTURE_BINDING_2D);
}

StateScope::~StateScope()
{
    mpGl->glActiveTexture(GL_TEXTURE0);
    mpGl->glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(mTexture));
    mpGl->glActiveTexture(static_cast<GLenum>(mUnit));
    mpGl->glPixelStorei(GL_UNPACK_ALIGNMENT, mAlignment);
    mpGl->glPixelStorei(GL_UNPACK_ROW_LENGTH, mRowLength);
    mpGl->glUseProgram(static_cast<GLuint>(mProgram));
    if (mHasVertexArrays)
        mpGl->glBindVertexArray(static_cast<GLuint>(mVertexArray));
    mpGl->glBindBuffer(GL_ARRAY_BUFFER, static_cast<GLuint>(mBuffer));
    mpGl->glBlendFuncSeparate(static_cast<GLenum>(mBlend[0]), static_cast<GLenum>(mBlend[1]), static_cast<GLenum>(mBlend[2]),
                              static_cast<GLenum>(mBlend[3]));
    mpGl->glClearColor(mClear[0], mClear[1], mClear[2], mClear[3]);
    mpGl->glViewport(mViewport[0], mViewport[1], mViewport[2], mViewport[3]);
    mpGl->glScissor(mScissor[0], mScissor[1], mScissor[2], mScissor[3]);
    for (std::size_t i = 0; i < kCapabilities.size(); ++i)
        enable(kCapabilities[i], mEnabled[i]);
}

GLint StateScope::integer(GLenum name) const
{
    GLint value = 0;
    mpGl->glGetIntegerv(name, &value);
    return value;
}

void StateScope::enable(GLenum capability, bool on) const
{
    if (on)
        mpGl->glEnable(capability);
    else
        mpGl->glDisable(capability);
}

} // namespace VESK::OpenGL
