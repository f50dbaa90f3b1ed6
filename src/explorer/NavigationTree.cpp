#include "explorer/NavigationTree.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

namespace kartella {

namespace {
constexpr int KeyRole = Qt::UserRole + 1;
constexpr int IndexRole = Qt::UserRole + 2;
constexpr int ImageRole = Qt::UserRole + 3;
constexpr int SelectedImageRole = Qt::UserRole + 4;
constexpr int ExpandedImageRole = Qt::UserRole + 5;

// A plain picture for a key the icon theme doesn't have.
QPixmap drawnImage(const QString& key)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    if (key == QLatin1String("Point")) {
        painter.setBrush(QColor(0x2a, 0x6f, 0xb0));
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(QRectF(4, 4, 8, 8));
    } else if (key == QLatin1String("Twist")) {
        painter.setBrush(QColor(0x55, 0x55, 0x55));
        painter.setPen(Qt::NoPen);
        const QPointF arrow[] = {{5, 3}, {12, 8}, {5, 13}};
        painter.drawPolygon(arrow, 3);
    } else {
        const bool open = key == QLatin1String("Open");
        painter.setPen(QColor(0x9a, 0x73, 0x1c));
        painter.setBrush(open ? QColor(0xf6, 0xd3, 0x6b) : QColor(0xe8, 0xb9, 0x3b));
        painter.drawRect(QRectF(1.5, 4.5, 13, 9));
        painter.drawRect(QRectF(1.5, 2.5, 6, 2));
    }
    return pixmap;
}

QString themeName(const QString& key)
{
    if (key == QLatin1String("Open"))
        return QStringLiteral("folder-open");
    if (key == QLatin1String("Closed"))
        return QStringLiteral("folder");
    if (key == QLatin1String("Point"))
        return QStringLiteral("avatar-default");
    return QStringLiteral("go-next");
}

QIcon nodeIcon(const QString& image, const QString& selectedImage)
{
    // One icon for each pair, shared by every node that shows it: a tree of tens of
    // thousands of contacts draws its two pictures once.
    static QHash<QString, QIcon> icons;
    const QString pair = image + u'|' + selectedImage;
    if (const auto found = icons.constFind(pair); found != icons.cend())
        return *found;
    QIcon icon;
    if (!image.isEmpty()) {
        const QIcon normal = NavigationTree::nodeImage(image);
        for (int size : {16, 22, 32})
            icon.addPixmap(normal.pixmap(size), QIcon::Normal);
    }
    if (!selectedImage.isEmpty()) {
        const QIcon selected = NavigationTree::nodeImage(selectedImage);
        for (int size : {16, 22, 32})
            icon.addPixmap(selected.pixmap(size), QIcon::Selected);
    }
    icons.insert(pair, icon);
    return icon;
}
} // namespace

NavigationTree::NavigationTree(QWidget* parent)
    : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setColumnCount(1);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemClicked, this, &NavigationTree::onItemClicked);
    connect(this, &QTreeWidget::currentItemChanged, this, &NavigationTree::onCurrentItemChanged);
    connect(this, &QTreeWidget::itemExpanded, this, &NavigationTree::onExpansionChanged);
    connect(this, &QTreeWidget::itemCollapsed, this, &NavigationTree::onExpansionChanged);
}

QIcon NavigationTree::nodeImage(const QString& key)
{
    static QHash<QString, QIcon> images;
    auto it = images.find(key);
    if (it == images.end()) {
        QIcon icon = QIcon::fromTheme(themeName(key));
        if (icon.isNull())
            icon = QIcon(drawnImage(key));
        it = images.insert(key, icon);
    }
    return *it;
}

void NavigationTree::clearNodes()
{
    m_selectingByCode = true;
    clear();
    m_selectingByCode = false;
    m_nodes.clear();
    m_byKey.clear();
}

QTreeWidgetItem* NavigationTree::makeNode(
    const QString& key, const QString& text, const QString& image, const QString& selectedImage)
{
    auto* node = new QTreeWidgetItem;
    node->setText(0, text);
    node->setData(0, KeyRole, key);
    node->setData(0, IndexRole, int(m_nodes.size()) + 1);
    node->setData(0, ImageRole, image);
    node->setData(0, SelectedImageRole, selectedImage);
    if (!image.isEmpty() || !selectedImage.isEmpty())
        node->setIcon(0, nodeIcon(image, selectedImage));
    m_nodes.append(node);
    m_byKey.insert(key.toLower(), node);
    return node;
}

QTreeWidgetItem* NavigationTree::addNode(const QString& parentKey, const QString& key, const QString& text,
    const QString& image, const QString& selectedImage)
{
    QTreeWidgetItem* parent = parentKey.isEmpty() ? nullptr : nodeByKey(parentKey);
    QTreeWidgetItem* node = makeNode(key, text, image, selectedImage);
    if (parent)
        parent->addChild(node);
    else
        addTopLevelItem(node);
    return node;
}

void NavigationTree::addNodes(const QString& parentKey, const QList<std::pair<QString, QString>>& nodes,
    const QString& image, const QString& selectedImage)
{
    QTreeWidgetItem* parent = parentKey.isEmpty() ? nullptr : nodeByKey(parentKey);
    QList<QTreeWidgetItem*> made;
    made.reserve(nodes.size());
    for (const auto& [key, text] : nodes)
        made << makeNode(key, text, image, selectedImage);
    if (parent)
        parent->addChildren(made);
    else
        addTopLevelItems(made);
}

void NavigationTree::setExpandedImage(QTreeWidgetItem* node, const QString& image)
{
    node->setData(0, ExpandedImageRole, image);
    onExpansionChanged(node);
}

QTreeWidgetItem* NavigationTree::nodeByKey(const QString& key) const
{
    return m_byKey.value(key.toLower());
}

QTreeWidgetItem* NavigationTree::nodeByIndex(int index) const
{
    return index >= 1 && index <= m_nodes.size() ? m_nodes[index - 1] : nullptr;
}

QString NavigationTree::nodeKey(const QTreeWidgetItem* node)
{
    return node ? node->data(0, KeyRole).toString() : QString();
}

int NavigationTree::nodeIndex(const QTreeWidgetItem* node)
{
    return node ? node->data(0, IndexRole).toInt() : 0;
}

void NavigationTree::selectNode(QTreeWidgetItem* node)
{
    m_selectingByCode = true;
    setCurrentItem(node);
    m_selectingByCode = false;
}

void NavigationTree::mousePressEvent(QMouseEvent* event)
{
    Q_EMIT pressed(event->button(), event->globalPosition().toPoint());
    if (event->button() == Qt::RightButton) {
        event->accept();
        return;
    }
    QTreeWidget::mousePressEvent(event);
}

void NavigationTree::contextMenuEvent(QContextMenuEvent* event)
{
    // The menu key acts as the right button; a mouse press has already been answered.
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const QRect rect = currentItem() ? visualItemRect(currentItem()) : QRect(0, 0, 16, 16);
        Q_EMIT pressed(Qt::RightButton, viewport()->mapToGlobal(rect.center()));
    }
    event->accept();
}

void NavigationTree::onItemClicked(QTreeWidgetItem* item)
{
    if (item)
        Q_EMIT nodeClicked(item);
}

void NavigationTree::onCurrentItemChanged(QTreeWidgetItem* current)
{
    // A move with the keyboard acts as a click; a mouse press is answered by itemClicked.
    if (current && !m_selectingByCode && hasFocus() && QGuiApplication::mouseButtons() == Qt::NoButton)
        Q_EMIT nodeClicked(current);
}

void NavigationTree::onExpansionChanged(QTreeWidgetItem* item)
{
    const QString expanded = item->data(0, ExpandedImageRole).toString();
    if (expanded.isEmpty())
        return;
    const QString image = item->isExpanded() ? expanded : item->data(0, ImageRole).toString();
    item->setIcon(0, nodeIcon(image, item->data(0, SelectedImageRole).toString()));
}

} // namespace kartella
