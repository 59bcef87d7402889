// Writes the program's icon as files, in the folders where desktops look for icons.
//
//   make_icons FOLDER     FOLDER is that of an icon theme, such as share/icons/hicolor

#include <QDir>
#include <cstdlib>
#include <iostream>

#include "platform/desktop/pictures.h"

int main(int argc, char** argv) {
    using namespace brooklander::desktop;
    if (argc != 2) {
        std::cerr << "make_icons FOLDER\n";
        return EXIT_FAILURE;
    }
    const QDir theme(QString::fromLocal8Bit(argv[1]));
    for (const int size : icon_sizes) {
        const QString folder = QStringLiteral("%1x%1/apps").arg(size);
        const QString file = theme.filePath(folder + QStringLiteral("/brooklander.png"));
        if (!theme.mkpath(folder) || !icon_picture(size).save(file)) {
            std::cerr << '"' << file.toStdString() << "\" cannot be written.\n";
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
