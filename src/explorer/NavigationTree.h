#pragma once

#include <QHash>
#include <QTreeWidget>

namespace kartella {

// The navigation tree: nodes with a key, a text, an image and a selected image (from
// the keys "Open", "Closed", "Point", "Twist"), an index in the order of adding
// (1-based), and for the root an expanded image. Selecting a node by code raises no click.
class NavigationTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit NavigationTree(QWidget* parent = nullptr);

    void clearNodes();
    // Adds a node as the last child of the node with parentKey (none: a root). Returns it.
    QTreeWidgetItem* addNode(const QString& parentKey, const QString& key, const QString& text,
        const QString& image = {}, const QString& selectedImage = {});
    // Adds nodes (key and text each) as the last children of the node with parentKey, all
    // with the same images, in one insertion: thousands of them take no longer to add than
    // to read.
    void addNodes(const QString& parentKey, const QList<std::pair<QString, QString>>& nodes,
        const QString& image, const QString& selectedImage);
    void setExpandedImage(QTreeWidgetItem* node, const QString& image);
    QTreeWidgetItem* nodeByKey(const QString& key) const;
    QTreeWidgetItem* nodeByIndex(int index) const;
    int nodeCount() const { return int(m_nodes.size()); }

    static QString nodeKey(const QTreeWidgetItem* node);
    static int nodeIndex(const QTreeWidgetItem* node);
    // Selects the node without raising nodeClicked.
    void selectNode(QTreeWidgetItem* node);

    // The picture of an image key of the tree's image list.
    static QIcon nodeImage(const QString& key);

Q_SIGNALS:
    void nodeClicked(QTreeWidgetItem* node);
    // A mouse button went down over the tree. The right button selects nothing: the tree's
    // menu acts on the node last clicked with the left button.
    void pressed(Qt::MouseButton button, const QPoint& globalPos);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // A node not yet in the tree, with its index and key taken.
    QTreeWidgetItem* makeNode(
        const QString& key, const QString& text, const QString& image, const QString& selectedImage);
    void onItemClicked(QTreeWidgetItem* item);
    void onCurrentItemChanged(QTreeWidgetItem* current);
    void onExpansionChanged(QTreeWidgetItem* item);

    QList<QTreeWidgetItem*> m_nodes;
    QHash<QString, QTreeWidgetItem*> m_byKey;
    bool m_selectingByCode = false;
};

} // namespace kartella
