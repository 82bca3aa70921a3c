// compare-window
// The least that a program with a window does before its own work begins.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1000, 720);
    window.show();
    return QApplication::exec();
}
