// compare-start
// The least that a program with Qt's core does before its own work begins.

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    std::puts("started");
    return 0;
}
