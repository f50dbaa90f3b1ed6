#include "addressbook/ContactLine.h"

#include "store/engine/TextFold.h"

namespace kartella {

bool ContactLine::operator<(const QTreeWidgetItem& other) const
{
    const int column = treeWidget() ? treeWidget()->sortColumn() : 0;
    const QByteArray left = text(column).toUtf8();
    const QByteArray right = other.text(column).toUtf8();
    return engine::compareNames(
               left.constData(), size_t(left.size()), right.constData(), size_t(right.size()))
        < 0;
}

} // namespace kartella
