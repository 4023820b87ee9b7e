// vabo-mark: writes the program's icon as pictures, for the menus of desktops:
//   vabo-mark <folder> <side in pixels> …     makes <folder>/<side>x<side>/apps/vabo.png

#include "controls/Mark.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>
#include <span>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("Usage: vabo-mark <folder> <side> ...\n", stderr);
        return 1;
    }
    for (const QString& side : arguments.mid(2)) {
        const QString folder = arguments[1] + QStringLiteral("/%1x%1/apps").arg(side);
        if (!QDir().mkpath(folder) ||
            !controls::Mark::picture(side.toInt()).save(folder + QStringLiteral("/vabo.png"))) {
            std::fprintf(stderr, "vabo-mark: %s can't be written\n", qUtf8Printable(folder));
            return 1;
        }
    }
    return 0;
}
