#include "featuretreedelegate.h"

#include "editorpark.h"
#include "featuretreehighlighter.h"
#include "featuretreeinodeitem.h"
#include "featuretreeitem.h"
#include "ifeaturetreemodelextension.h"
#include "messages/exceptionlogging.h"
#include "parameters/iadvancedparameteraccess.h"

#include <QApplication>
#include <QPainter>
#include <QTextDocument>

#include <exception>

#include "abstractitemeditor.h"
#include "checkboxeditor.h"
#include "enumeditor.h"
#include "floateditor.h"
#include "floatslidereditor.h"
#include "inteditor.h"
#include "intslidereditor.h"
#include "toolbuttoneditor.h"

using namespace ParameterCollection;

namespace {

bool isSliderRepresentation(const QString& representation)
{
    return representation == QLatin1String("Linear") || representation == QLatin1String("Logarithmic");
}

//! Whether the editor is one that createEditor() makes, of that very class:
//! only those are given back by it.
bool isOwnEditorClass(const QWidget* editor)
{
    const QMetaObject* kind = editor->metaObject();
    return kind == &EnumEditor::staticMetaObject || kind == &ToolButtonEditor::staticMetaObject
        || kind == &CheckBoxEditor::staticMetaObject || kind == &IntSliderEditor::staticMetaObject
        || kind == &IntEditor::staticMetaObject || kind == &FloatSliderEditor::staticMetaObject
        || kind == &FloatEditor::staticMetaObject;
}

QString representationOf(const QSharedPointer<IParameter>& parameter)
{
    const QSharedPointer<IAdvancedParameterAccess> access = parameter->advancedAccess();
    return access ? access->getProperty(QStringLiteral("Representation")) : QString();
}

} // namespace

FeatureTreeDelegate::FeatureTreeDelegate(
    QObject* parent, IFeatureTreeModelExtension* extension, FeatureTreeHighlighter* highlighter)
    : QStyledItemDelegate(parent)
    , m_extension(extension)
    , m_highlighter(highlighter)
{
}

FeatureTreeDelegate::~FeatureTreeDelegate() = default;

QWidget* FeatureTreeDelegate::createEditor(
    QWidget* parent, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    if (!index.isValid() || !m_extension)
        return nullptr;
    auto* item = qobject_cast<FeatureTreeINodeItem*>(m_extension->getFeatureTreeItem(index));
    if (!item)
        return nullptr;
    try {
        if (item->getAccessMode() <= GenApi::NA)
            return nullptr;
        const QSharedPointer<IParameter> node = item->node();
        const int editorType = item->editorType();
        // The editor that a bulk change of the view closed on this parameter, if it is kept.
        if (EditorPark* park = EditorPark::of(const_cast<FeatureTreeDelegate*>(this), false)) {
            if (QWidget* editor = park->take(node, editorType, parent))
                return editor;
        }
        switch (editorType) {
        case FeatureTreeItem::EditorInt:
        case FeatureTreeItem::EditorIntSlider:
            return createIntEditor(parent, option, node.dynamicCast<IIntegerParameter>());
        case FeatureTreeItem::EditorFloat:
        case FeatureTreeItem::EditorFloatSlider:
            // Of the five families only the float one falls back to the plain editor.
            if (QWidget* editor
                = createFloatEditor(parent, option, node.dynamicCast<IFloatParameter>(), item->collection()))
                return editor;
            return QStyledItemDelegate::createEditor(parent, option, index);
        case FeatureTreeItem::EditorEnum:
            return createEnumEditor(parent, option, node.dynamicCast<IEnumParameter>());
        case FeatureTreeItem::EditorBool:
            return createCheckBoxEditor(parent, option, node.dynamicCast<IBooleanParameter>());
        case FeatureTreeItem::EditorCommand:
            return createToolButtonEditor(parent, option, node.dynamicCast<ICommandParameter>());
        default:
            return QStyledItemDelegate::createEditor(parent, option, index);
        }
    } catch (const std::exception& e) {
        ZVC_LOGGER.warning("Failed to create an editor");
        ExceptionLogging::logException(Q_FUNC_INFO, e);
    } catch (...) {
        ZVC_LOGGER.warning("Failed to create an editor");
        ExceptionLogging::logUnspecifiedException(Q_FUNC_INFO);
    }
    return nullptr;
}

QWidget* FeatureTreeDelegate::createEnumEditor(
    QWidget* parent, QStyleOptionViewItem const& option, QSharedPointer<IEnumParameter> parameter) const
{
    if (!parameter || parameter->isZombie())
        return nullptr;
    Q_UNUSED(option)
    auto* editor = new EnumEditor(parent);
    connect(editor, SIGNAL(activated(int)), this, SLOT(emitCommitData()));
    return editor;
}

QWidget* FeatureTreeDelegate::createToolButtonEditor(
    QWidget* parent, QStyleOptionViewItem const& option, QSharedPointer<ICommandParameter> parameter) const
{
    if (!parameter || parameter->isZombie())
        return nullptr;
    Q_UNUSED(option)
    auto* editor = new ToolButtonEditor(parent);
    connect(editor, SIGNAL(clicked(bool)), this, SLOT(emitCommitData()));
    return editor;
}

QWidget* FeatureTreeDelegate::createCheckBoxEditor(
    QWidget* parent, QStyleOptionViewItem const& option, QSharedPointer<IBooleanParameter> parameter) const
{
    if (!parameter || parameter->isZombie())
        return nullptr;
    Q_UNUSED(option)
    auto* editor = new CheckBoxEditor(parent);
    connect(editor, SIGNAL(clicked(bool)), this, SLOT(emitCommitData()));
    return editor;
}

QWidget* FeatureTreeDelegate::createIntEditor(
    QWidget* parent, QStyleOptionViewItem const& option, QSharedPointer<IIntegerParameter> parameter) const
{
    if (!parameter || parameter->isZombie())
        return nullptr;
    Q_UNUSED(option)
    if (isSliderRepresentation(representationOf(parameter))) {
        auto* editor = new IntSliderEditor(parent);
        connect(editor, SIGNAL(valueChanged(int)), this, SLOT(emitCommitData()));
        return editor;
    }
    // The plain integer editor commits the ordinary way, through the event filter.
    return new IntEditor(parent);
}

QWidget* FeatureTreeDelegate::createFloatEditor(QWidget* parent, QStyleOptionViewItem const& option,
    QSharedPointer<IFloatParameter> parameter, QSharedPointer<IParameterCollection> collection) const
{
    Q_UNUSED(option)
    if (!parameter || parameter->isZombie())
        return nullptr;
    const QString representation = representationOf(parameter);
    // The slider needs the whole-unit alias of the feature beside it.
    if (isSliderRepresentation(representation) && collection
        && collection->hasParameter(parameter->getFullName() + QStringLiteral("/Alias"))) {
        auto* editor = new FloatSliderEditor(collection, parent);
        connect(editor, SIGNAL(boxValueChanged()), this, SLOT(emitCommitData()));
        return editor;
    }
    auto* editor = new FloatEditor(parent, representation);
    connect(editor, SIGNAL(boxValueChanged()), this, SLOT(emitCommitData()));
    return editor;
}

void FeatureTreeDelegate::emitCommitData()
{
    emit commitData(qobject_cast<QWidget*>(sender()));
}

void FeatureTreeDelegate::destroyEditor(QWidget* editor, QModelIndex const& index) const
{
    if (!editor)
        return;
    // While the view closes its editors for a bulk change, ours are kept for
    // the rows that come back (see EditorPark). The view closes them from
    // its row signals, where the proxy's indexes are all still valid.
    EditorPark* park = EditorPark::of(const_cast<FeatureTreeDelegate*>(this), false);
    if (park && park->isOpen() && m_extension && isOwnEditorClass(editor)) {
        auto* item = qobject_cast<FeatureTreeINodeItem*>(m_extension->getFeatureTreeItem(index));
        if (item && park->park(editor, item->node(), item->editorType()))
            return;
    }
    // Later, never at once: the editor may be the sender of the signal that led here.
    editor->deleteLater();
}

void FeatureTreeDelegate::setEditorData(QWidget* editor, QModelIndex const& index) const
{
    if (index.column() != 1) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    FeatureTreeItem* item = m_extension ? m_extension->getFeatureTreeItem(index) : nullptr;
    if (!item)
        return;
    auto* itemEditor = dynamic_cast<AbstractItemEditor*>(editor);
    auto* nodeItem = qobject_cast<FeatureTreeINodeItem*>(item);
    if (itemEditor && nodeItem) {
        itemEditor->setEditorData(AbstractItemEditor::EditorData { nodeItem->node(), nodeItem->getParameterData() });
        return;
    }
    // Don't overwrite what the user is typing.
    if (editor && editor->hasFocus())
        return;
    QStyledItemDelegate::setEditorData(editor, index);
}

void FeatureTreeDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const
{
    if (index.column() == 1 && editor && model) {
        if (auto* itemEditor = dynamic_cast<AbstractItemEditor*>(editor)) {
            model->setData(index, itemEditor->editorData(), Qt::EditRole);
            return;
        }
    }
    QStyledItemDelegate::setModelData(editor, model, index);
}

namespace {
void drawRichText(QPainter* painter, const QRect& rect, const QString& html, const QColor& colour)
{
    // The search result line is marked up ("<HTML><B>...</B>"); drawn as plain text its tags would show.
    // Laid out without margins, in the painter's font and the row's colour, it sits where plain text would.
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(painter->font());
    document.setDefaultStyleSheet(QStringLiteral("body { color: %1; }").arg(colour.name()));
    document.setHtml(html);
    painter->translate(rect.topLeft());
    document.drawContents(painter, QRectF(0, 0, rect.width(), rect.height()));
}
} // namespace

void FeatureTreeDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    if (index.column() != 0 || !m_highlighter || index.data(FeatureTreeItem::IsCategoryRole).toBool()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }

    QStyleOptionViewItem opt(option);
    initStyleOption(&opt, index);
    QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();
    const QRect textRect = style->subElementRect(QStyle::SE_ItemViewItemText, &opt, opt.widget);

    const bool special = index.data(FeatureTreeItem::IsSpecialNodeRole).toBool();
    const QString displayText = index.data(Qt::DisplayRole).toString();
    const QVariant foreground = index.data(Qt::ForegroundRole);
    const QBrush brush = foreground.canConvert<QBrush>() ? foreground.value<QBrush>() : QBrush();

    QString text = displayText;
    if (!special) {
        const QFontMetrics metrics = painter->fontMetrics();
        // The matches' length in characters is taken off in pixels, as a margin for the marks.
        text = metrics.elidedText(
            displayText, Qt::ElideRight, textRect.width() - 2 * m_highlighter->getTextToHighlightLength());
        const QVector<QPair<int, int>> matches = m_highlighter->getIndiceesToHighlight(text);
        for (const QPair<int, int>& match : matches) {
            const int startWidth = metrics.horizontalAdvance(text.left(match.first));
            const int endWidth = metrics.horizontalAdvance(text.left(match.second));
            painter->fillRect(
                QRect(textRect.left() + startWidth, textRect.top(), endWidth - startWidth, textRect.height()),
                m_highlighter->getHighlightColor());
        }
    }

    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &opt, painter, qobject_cast<QWidget*>(parent()));

    painter->save();
    painter->setPen(brush.color());
    const int top = textRect.top() + int(textRect.height() / 2.0 - painter->fontMetrics().height() / 2.0);
    const QRect drawRect(QPoint(textRect.left(), top), textRect.bottomRight());
    if (special && text.startsWith(QLatin1String("<HTML>"), Qt::CaseInsensitive))
        drawRichText(painter, drawRect, text, brush.color());
    else
        painter->drawText(drawRect, 0, text);
    painter->restore();
}
