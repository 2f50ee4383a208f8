#include "ui/map/EmptyMap.h"

#include "base/About.h"
#include "ui/map/CreditsList.h"
#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

QImage drawEmptyMap(QSize size, const QString& title) {
    QImage picture(size.expandedTo({1, 1}), QImage::Format_RGB32);
    picture.fill(Qt::black);
    {
        Drawing drawing(&picture);
        const QImage splash(u":/windows/picSplash.png"_s);
        drawing.painter().drawImage(0, size.height() - splash.height(), splash);
        drawing.setFont(arial(points24));
        drawing.setForeground(creamText);
        const int width = drawing.textWidth(title);
        const int height = drawing.lineHeight();
        const int left = (size.width() - width) / 2;
        drawing.print(left, height / 2, title);
        drawing.print(left + width - drawing.textWidth(byLine()), height / 2 + height, byLine());
    }
    DrawCreditsList(picture, 1);
    return picture;
}

} // namespace orvinel
