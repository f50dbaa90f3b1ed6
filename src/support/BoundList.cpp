#include "support/BoundList.h"

#include "store/engine/Recordset.h"
#include "store/engine/Value.h"

#include <QComboBox>

namespace kartella {

BoundList::BoundList(QComboBox* box, QObject* parent)
    : QObject(parent)
    , m_box(box)
{
    m_box->setEditable(false);
    m_box->setCurrentIndex(-1);
    connect(m_box, &QComboBox::activated, this, &BoundList::onActivated);
}

void BoundList::setRowSource(Recordset* rows, const QString& listField, const QString& boundColumn)
{
    if (m_rows)
        disconnect(m_rows, nullptr, this, nullptr);
    m_rows = rows;
    m_listField = listField;
    m_boundColumn = boundColumn;
    if (m_rows)
        connect(m_rows, &Recordset::recordsetChangeComplete, this, &BoundList::refill);
    refill();
}

void BoundList::refill()
{
    m_filling = true;
    m_box->clear();
    if (m_rows && m_rows->isOpen()) {
        const QStringList names = m_rows->fieldNames();
        const auto column = [&names](const QString& name) {
            for (int i = 0; i < names.size(); ++i) {
                if (names[i].compare(name, Qt::CaseInsensitive) == 0)
                    return i;
            }
            return -1;
        };
        const int shown = column(m_listField);
        const int bound = column(m_boundColumn);
        if (shown >= 0 && bound >= 0) {
            const int count = m_rows->recordCount();
            for (int row = 0; row < count; ++row) {
                const QVariant text = m_rows->rowValue(row, shown);
                m_box->addItem(
                    isNull(text) ? QString() : text.toString(), keyText(m_rows->rowValue(row, bound)));
            }
        }
    }
    showValue();
    m_filling = false;
}

void BoundList::setValue(const QVariant& key)
{
    const QString text = keyText(key);
    if (text == m_value) {
        showValue();
        return;
    }
    m_value = text;
    showValue();
    Q_EMIT changed();
}

QString BoundList::text() const
{
    return m_box->currentIndex() >= 0 ? m_box->currentText() : QString();
}

QString BoundList::textOf(const QVariant& key) const
{
    const int index = isNull(key) ? -1 : m_box->findData(keyText(key));
    return index >= 0 ? m_box->itemText(index) : QString();
}

void BoundList::onActivated(int index)
{
    if (m_filling || index < 0)
        return;
    setValue(m_box->itemData(index));
}

void BoundList::showValue()
{
    const int index = m_value.isEmpty() ? -1 : m_box->findData(m_value);
    if (m_box->currentIndex() != index)
        m_box->setCurrentIndex(index);
}

QString BoundList::keyText(const QVariant& key)
{
    return isNull(key) ? QString() : key.toString().trimmed();
}

} // namespace kartella
