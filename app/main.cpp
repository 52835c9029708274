// The executable `zp`: the main window, or a headless batch run when options say what to do.
#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    std::fputs("zp: Die Programmoberfläche ist noch nicht eingebaut.\n", stderr);
    return 1;
}
