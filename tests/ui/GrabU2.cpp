#include "ui/map/CreditsList.h"
#include <gtest/gtest.h>
TEST(Grab, credits) {
    for (int p : {0, 1}) {
        QImage i(p ? QSize(800, 700) : QSize(507, 205), QImage::Format_RGB32);
        i.fill(Qt::black);
        orvinel::DrawCreditsList(i, p);
        i.save(QString::fromUtf16(p ? u"/tmp/u2_c1.png" : u"/tmp/u2_c0.png"));
    }
}
