#pragma once

#include <memory>

class QOpenGLShaderProgram;
class QString;

namespace VESK::OpenGL {

enum class EShading;

/// Compiles and links the program of a shading for the current context, in the language that it speaks. The vertices' position,
/// texture coordinates and colour are attributes 0, 1 and 2. @return null with the compiler's words in `error` when it fails.
[[nodiscard]] std::unique_ptr<QOpenGLShaderProgram> buildProgram(EShading shading, QString& error);

} // namespace VESK::OpenGL
