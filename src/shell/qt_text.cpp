#include "shell/qt_text.h"

#include <QByteArray>

namespace vorlexa::shell {

namespace {
QString fromFont(std::string_view font) {
    const std::string utf8 = toUtf8(font);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
}  // namespace

QString boxText(std::string_view font) {
    QString s = fromFont(font);
    s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return s;
}

FontText fontText(const QString& box) {
    QString s = box;
    s.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    s.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    const QByteArray utf8 = s.toUtf8();
    return fromUtf8(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

QString messageText(std::string_view font) {
    QString s = fromFont(font);
    s.replace(QStringLiteral("\n\r"), QStringLiteral("\n"));
    s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return s;
}

int fontPosition(const QString& box, int position) {
    return static_cast<int>(fontText(box.left(position)).size());
}

int boxPosition(std::string_view font, int position) {
    if (position <= 0) return 0;
    return static_cast<int>(boxText(font.substr(0, static_cast<std::size_t>(position))).size());
}

}  // namespace vorlexa::shell
