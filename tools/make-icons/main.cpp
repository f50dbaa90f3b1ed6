// Draws the "no file" picture: a snowflake on a transparent ground, 32 x 32, and writes
// it to the path given on the command line (an ICO file for the program).

#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

QImage drawSnowflake(int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal scale = size / 32.0;
    painter.translate(size / 2.0, size / 2.0);
    painter.scale(scale, scale);

    // One arm: a stroke from the centre with two pairs of side branches.
    QPainterPath arm;
    arm.moveTo(0, 0);
    arm.lineTo(0, -14);
    for (const qreal at : {-6.0, -10.5}) {
        const qreal branch = at < -8 ? 3.0 : 4.0;
        arm.moveTo(0, at);
        arm.lineTo(-branch, at - branch);
        arm.moveTo(0, at);
        arm.lineTo(branch, at - branch);
    }

    const QColor outline(255, 255, 255, 200);
    const QColor ice(46, 110, 178);
    for (const auto& [color, width] : {std::pair {outline, 4.2}, std::pair {ice, 2.2}}) {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        for (int i = 0; i < 6; ++i) {
            painter.save();
            painter.rotate(60.0 * i);
            painter.drawPath(arm);
            painter.restore();
        }
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(ice);
    painter.drawEllipse(QPointF(0, 0), 2.6, 2.6);
    painter.end();
    return image;
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fputs("usage: make-icons <output.ico|output.png>\n", stderr);
        return 2;
    }
    // The format follows the file's suffix (.ico, or .png to look at the picture).
    QImageWriter writer(QString::fromLocal8Bit(argv[1]));
    if (!writer.write(drawSnowflake(32))) {
        std::fprintf(stderr, "make-icons: %s\n", qPrintable(writer.errorString()));
        return 1;
    }
    return 0;
}
