#include "vesk/gl/Device.h"

#include "vesk/gl/Shaders.h"
#include "vesk/gl/Texture.h"

#include <QOpenGLContext>
#include <QOpenGLShaderProgram>

#include <cmath>
#include <cstddef>

namespace VESK::OpenGL {

namespace {

/// So many vertices are drawn at once, to bound the memory of a frame.
constexpr std::size_t kMostVertices = std::size_t(1) << 20;

} // namespace

Device::Device() = default;

Device::~Device()
{
    if (mVertexArray == 0 || !QOpenGLContext::currentContext())
        return;
    mpGl->glDeleteVertexArrays(1, &mVertexArray);
    mpGl->glDeleteBuffers(1, &mBuffer);
}

bool Device::useContext()
{
    QOpenGLContext* pContext = QOpenGLContext::currentContext();
    if (!pContext) {
        mError = QStringLiteral("no current OpenGL context");
        return false;
    }
    mpGl = pContext->extraFunctions();
    return true;
}

bool Device::init()
{
    if (!useContext())
        return false;
    mpMask = buildProgram(EShading::eMask, mError);
    mpImage = buildProgram(EShading::eImage, mError);
    if (mpMask && mpImage)
        mpPlain = buildProgram(EShading::ePlain, mError);
    if (!mpPlain)
        return false;
    setUpVertices();
    return true;
}

void Device::setUpVertices()
{
    mpGl->glGenVertexArrays(1, &mVertexArray);
    mpGl->glGenBuffers(1, &mBuffer);
    mpGl->glBindVertexArray(mVertexArray);
    mpGl->glBindBuffer(GL_ARRAY_BUFFER, mBuffer);
    const auto attribute = [this](GLuint index, GLint count, GLenum type, bool normalised, std::size_t offset) {
        mpGl->glEnableVertexAttribArray(index);
        mpGl->glVertexAttribPointer(index, count, type, normalised ? GL_TRUE : GL_FALSE, sizeof(Vertex), reinterpret_cast<const void*>(offset));
    };
    attribute(0, 2, GL_FLOAT, false, offsetof(Vertex, x));
    attribute(1, 2, GL_FLOAT, false, offsetof(Vertex, u));
    attribute(2, 4, GL_UNSIGNED_BYTE, true, offsetof(Vertex, colour));
    mpGl->glBindVertexArray(0);
    mpGl->glBindBuffer(GL_ARRAY_BUFFER, 0);
}

void Device::begin(const QSize& size, double ratio)
{
    mSize = size;
    mRatio = ratio;
    mMatrix.clear();
    mVertices.clear();
    mpGl->glViewport(0, 0, static_cast<GLsizei>(std::lround(size.width() * ratio)), static_cast<GLsizei>(std::lround(size.height() * ratio)));
    for (const GLenum capability : {GL_DEPTH_TEST, GL_STENCIL_TEST, GL_SCISSOR_TEST, GL_CULL_FACE})
        mpGl->glDisable(capability);
    mpGl->glEnable(GL_BLEND);
    mpGl->glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA); // colours are multiplied by alpha already
    mpGl->glActiveTexture(GL_TEXTURE0);
}

void Device::end()
{
    flush();
    setNoClip();
    if (mVertexArray != 0)
        mpGl->glBindVertexArray(0);
    mpGl->glUseProgram(0);
}

void Device::clear(const QColor& colour)
{
    mpGl->glClearColor(colour.redF(), colour.greenF(), colour.blueF(), 1.0F);
    mpGl->glClear(GL_COLOR_BUFFER_BIT);
}

void Device::clearRect(const QRectF& rect, const QColor& colour)
{
    setClip(rect);
    clear(colour);
    setNoClip();
}

void Device::setClip(const QRectF& rect)
{
    flush();
    const auto scaled = [this](double value) { return static_cast<GLint>(std::lround(std::clamp(value * mRatio, -1e6, 1e6))); };
    const GLint left = scaled(rect.left()), right = scaled(rect.right());
    const GLint bottom = scaled(mSize.height() - rect.bottom()), top = scaled(mSize.height() - rect.top());
    mpGl->glEnable(GL_SCISSOR_TEST);
    mpGl->glScissor(left, bottom, std::max(0, right - left), std::max(0, top - bottom));
}

void Device::setNoClip()
{
    flush();
    mpGl->glDisable(GL_SCISSOR_TEST);
}

void Device::add(GLenum mode, EShading shading, GLuint texture, std::span<const Vertex> vertices)
{
    const Batch batch{mode, shading, texture};
    if (batch != mBatch || mVertices.size() + vertices.size() > kMostVertices)
        flush();
    mBatch = batch;
    mVertices.insert(mVertices.end(), vertices.begin(), vertices.end());
}

void Device::addTextured(EShading shading, const Texture& texture, std::span<const Vertex> triangles)
{
    add(GL_TRIANGLES, shading, texture.name(), triangles);
}

void Device::addQuad(EShading shading, const Texture& texture, const QRectF& target, const QRectF& part, const QColor& colour)
{
    const VertexColour bytes = vertexColour(colour);
    const auto corner = [&](const QPointF& point, double u, double v) {
        const QPointF at = mMatrix.map(point);
        return Vertex{static_cast<float>(at.x()), static_cast<float>(at.y()), static_cast<float>(u), static_cast<float>(v), bytes};
    };
    const Vertex a = corner(target.topLeft(), part.left(), part.top()), b = corner(target.topRight(), part.right(), part.top());
    const Vertex c = corner(target.bottomLeft(), part.left(), part.bottom()), d = corner(target.bottomRight(), part.right(), part.bottom());
    const std::array vertices{a, b, c, b, d, c};
    addTextured(shading, texture, vertices);
}

void Device::flush()
{
    if (mVertices.empty())
        return;
    drawBatch(mBatch, mVertices);
    mVertices.clear();
}

void Device::drawBatch(const Batch& batch, std::span<const Vertex> vertices)
{
    QOpenGLShaderProgram& program = batch.shading == EShading::eMask ? *mpMask : batch.shading == EShading::eImage ? *mpImage : *mpPlain;
    program.bind();
    program.setUniformValue("size", QSizeF(mSize));
    if (batch.texture != 0)
        mpGl->glBindTexture(GL_TEXTURE_2D, batch.texture);
    mpGl->glBindVertexArray(mVertexArray);
    mpGl->glBindBuffer(GL_ARRAY_BUFFER, mBuffer);
    mpGl->glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(vertices.size_bytes()), vertices.data(), GL_STREAM_DRAW);
    mpGl->glDrawArrays(batch.mode, 0, static_cast<GLsizei>(vertices.size()));
}

} // namespace VESK::OpenGL
