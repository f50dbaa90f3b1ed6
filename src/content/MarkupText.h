#pragma once

#include <QByteArray>
#include <QString>

namespace kartella {

// The pieces of the HTML and e-mail readers that other readers share.

// The charset an HTML page declares in a <meta> tag among its first bytes; empty when none.
QByteArray declaredHtmlCharset(const QByteArray& bytes);
// The text of an HTML page: tags out, scripts and styles out, entities decoded, a new line
// after each block (paragraph, line break, list item, table row, heading).
QString htmlToText(const QString& html);
// &amp; &lt; &#353; &#x161; and the common named entities decoded; others left as they are.
QString decodeEntities(const QString& text);
// The text of an RTF document: control words out, \'xx in the code page the document
// declares (\ansicpg), \uN as Unicode, hidden destinations (fonts, styles, pictures) out.
QString rtfToText(const QByteArray& rtf);

} // namespace kartella
