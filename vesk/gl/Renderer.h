#pragma once

namespace VESK::OpenGL {

/// Whether a program plays the graphics card of the current context, by the renderer's own name.
[[nodiscard]] bool isSoftwareRenderer();

} // namespace VESK::OpenGL
