#include "tests/terminal/draw/Golden.h"

#include <QDir>

#include <algorithm>
#include <cstdlib>

namespace {

std::string save(const QImage& image, const std::string& folder, const std::string& file)
{
    const QString path = QDir(QString::fromStdString(folder)).filePath(QString::fromStdString(file));
    QDir().mkpath(QString::fromStdString(folder));
    return image.save(path) ? path.toStdString() : path.toStdString() + " (which could not be written)";
}

/// What differs in red, a pixel that only one of the pictures has among it.
QImage difference(const QImage& a, const QImage& b)
{
    QImage result(std::max(a.width(), b.width()), std::max(a.height(), b.height()), QImage::Format_RGB32);
    result.fill(qRgb(255, 0, 0));
    for (int y = 0; y < std::min(a.height(), b.height()); ++y) {
        for (int x = 0; x < std::min(a.width(), b.width()); ++x) {
            if (a.pixel(x, y) == b.pixel(x, y)) {
                const int pale = 192 + qGray(a.pixel(x, y)) / 4;
                result.setPixel(x, y, qRgb(pale, pale, pale));
            }
        }
    }
    return result;
}

} // namespace

testing::AssertionResult matches_golden(const QImage& picture, const std::string& name)
{
    const char* const update = std::getenv("VTUI_UPDATE_GOLDEN");
    return matches_golden(picture, name, VTUI_GOLDEN_FOLDER, VTUI_GOLDEN_OUTPUT, update && std::string(update) == "1");
}

testing::AssertionResult matches_golden(const QImage& picture, const std::string& name,
                                        const std::string& golden_folder, const std::string& output_folder, bool update)
{
    const QImage actual = picture.convertToFormat(QImage::Format_RGB32);
    if (update) {
        save(picture, golden_folder, name + ".png");
        return testing::AssertionSuccess();
    }

    const QImage golden =
        QImage(QDir(QString::fromStdString(golden_folder)).filePath(QString::fromStdString(name + ".png")))
            .convertToFormat(QImage::Format_RGB32);
    if (!golden.isNull() && golden == actual)
        return testing::AssertionSuccess();

    testing::AssertionResult failure = testing::AssertionFailure();
    failure << "The picture is " << save(picture, output_folder, name + "_actual.png");
    if (golden.isNull())
        return failure << "\nThere is no golden picture " << name << ".png in " << golden_folder;
    return failure << "\nIt differs from the golden one where "
                   << save(difference(golden, actual), output_folder, name + "_difference.png") << " is red";
}
