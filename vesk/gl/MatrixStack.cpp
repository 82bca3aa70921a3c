#include "vesk/gl/MatrixStack.h"

namespace VESK::OpenGL {

void MatrixStack::MatrixPop()
{
    if (mSaved.empty()) {
        mTop = QTransform();
        return;
    }
    mTop = mSaved.back();
    mSaved.pop_back();
}

void MatrixStack::clear()
{
    mTop = QTransform();
    mSaved.clear();
}

} // namespace VESK::OpenGL
