#pragma once

#include "vesk/gl/MatrixStack.h"
#include "vesk/gl/Vertex.h"

#include <QOpenGLExtraFunctions>
#include <QRectF>
#include <QSize>

#include <memory>
#include <span>
#include <vector>

class QOpenGLShaderProgram;

namespace VESK::OpenGL {

class Texture;

/// How the inside of triangles gets its colour.
enum class EShading {
    ePlain, ///< the vertices' colours, with the edges of smooth lines
    eMask,  ///< the vertices' colours where the texture's mask lets them through
    eImage  ///< the texture, multiplied by the vertices' colours
};

/// Draws triangles and thin lines into the framebuffer of the current context, gathered so that a frame costs few calls. The primitives
/// of this library (Lines, LineStripsSimple, TriangleStrip, Texture, TextureFont) draw through it. Made once a context and
/// used and destroyed with that context current. Pixels are those of the view: origin at the top left, y downwards; a view on a
/// dense screen has `ratio` pixels of the screen for each.
class Device {
public:
    Device();
    virtual ~Device();
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    /// Compiles the shaders: GLSL 330 core, or ES 3 there. @return false when the context cannot draw; error() says why.
    virtual bool init();
    [[nodiscard]] const QString& error() const { return mError; }

    /// Begins a frame: viewport, projection, blending. Wrap begin() to end() in a StateScope where others use the context too.
    virtual void begin(const QSize& size, double ratio);
    virtual void end();
    /// The format that masks have in the memory of the graphics card.
    [[nodiscard]] virtual GLint maskFormat() const { return GL_R8; }
    /// Fills the whole viewport.
    void clear(const QColor& colour);
    /// Fills a rectangle with an opaque colour, without blending: what great areas cost least. The clipping is gone afterwards.
    void clearRect(const QRectF& rect, const QColor& colour);

    [[nodiscard]] MatrixStack& matrix() { return mMatrix; }
    [[nodiscard]] double ratio() const { return mRatio; }
    [[nodiscard]] const QSize& size() const { return mSize; }

    /// Nothing outside of it is drawn; in pixels, not moved by the matrix.
    void setClip(const QRectF& rect);
    void setNoClip();

    /// Vertices in pixels, the matrix applied already: three for each triangle, or two for each line of one pixel of the screen.
    void addTriangles(std::span<const Vertex> vertices) { add(GL_TRIANGLES, EShading::ePlain, 0, vertices); }
    void addThinLines(std::span<const Vertex> vertices) { add(GL_LINES, EShading::ePlain, 0, vertices); }
    void addTextured(EShading shading, const Texture& texture, std::span<const Vertex> triangles);
    /// A rectangle of a texture, moved by the matrix. @param part of the texture, 0..1
    void addQuad(EShading shading, const Texture& texture, const QRectF& target, const QRectF& part, const QColor& colour);
    /// Draws what was gathered. Needed before a texture changes that was drawn already.
    void flush();

protected:
    /// What is drawn by one call.
    struct Batch {
        GLenum mode = GL_TRIANGLES;
        EShading shading = EShading::ePlain;
        GLuint texture = 0;
        bool operator==(const Batch&) const = default;
    };
    virtual void drawBatch(const Batch& batch, std::span<const Vertex> vertices);
    [[nodiscard]] QOpenGLExtraFunctions& functions() const { return *mpGl; }
    /// Takes over the current context. @return false without one
    bool useContext();
    void setError(const QString& error) { mError = error; }

private:
    void add(GLenum mode, EShading shading, GLuint texture, std::span<const Vertex> vertices);
    void setUpVertices();

    QOpenGLExtraFunctions* mpGl = nullptr;
    std::unique_ptr<QOpenGLShaderProgram> mpPlain;
    std::unique_ptr<QOpenGLShaderProgram> mpMask;
    std::unique_ptr<QOpenGLShaderProgram> mpImage;
    MatrixStack mMatrix;
    Batch mBatch;
    std::vector<Vertex> mVertices;
    GLuint mVertexArray = 0;
    GLuint mBuffer = 0;
    QSize mSize;
    double mRatio = 1.0;
    QString mError;
};

} // namespace VESK::OpenGL
