// SPDX-License-Identifier: Apache-2.0
#include "valueeditor.h"

#include "alignmenteditor.h"
#include "coloreditor.h"
#include "numberseditor.h"
#include "pictureeditor.h"
#include "valuetext.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFont>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPushButton>

namespace
{

class ShownOnly : public ValueEditor
{
public:
    ShownOnly() { fillWith(&m_label); }

    void showValue(const QVariant &value) override
    {
        m_label.setText(valueText(value));
        m_label.setEnabled(false);
    }

private:
    QLabel m_label;
};

class BoolEditor : public ValueEditor
{
public:
    BoolEditor()
    {
        fillWith(&m_box);
        connect(&m_box, &QCheckBox::clicked, this, &ValueEditor::edited);
    }

    void showValue(const QVariant &value) override { m_box.setChecked(value.toBool()); }

private:
    QCheckBox m_box;
};

class TextEditor : public ValueEditor
{
public:
    TextEditor()
    {
        fillWith(&m_line);
        connect(&m_line, &QLineEdit::textEdited, this, &ValueEditor::edited);
    }

    void showValue(const QVariant &value) override
    {
        if (m_line.text() != value.toString())
            m_line.setText(value.toString());
    }

private:
    QLineEdit m_line;
};

class EnumEditor : public ValueEditor
{
public:
    explicit EnumEditor(const QMetaEnum &enumeration)
    {
        fillWith(&m_box);
        for (int i = 0; i < enumeration.keyCount(); ++i)
            m_box.addItem(QString::fromLatin1(enumeration.key(i)), enumeration.value(i));
        connect(&m_box, QOverload<int>::of(&QComboBox::activated), this,
                [this](int index) { emit edited(m_box.itemData(index)); });
    }

    void showValue(const QVariant &value) override
    {
        m_box.setCurrentIndex(m_box.findData(value.toInt()));
    }

private:
    QComboBox m_box;
};

class FontEditor : public ValueEditor
{
public:
    FontEditor()
    {
        fillWith(&m_button);
        connect(&m_button, &QPushButton::clicked, this, [this] {
            bool isChosen = false;
            const QFont chosen = QFontDialog::getFont(&isChosen, m_font, this);
            if (isChosen)
                emit edited(chosen);
        });
    }

    void showValue(const QVariant &value) override
    {
        m_font = value.value<QFont>();
        const QString size = m_font.pixelSize() > 0 ? tr("%1 px").arg(m_font.pixelSize())
                                                    : tr("%1 pt").arg(m_font.pointSize());
        m_button.setText(m_font.family() + QStringLiteral(", ") + size);
    }

private:
    QPushButton m_button;
    QFont m_font;
};

} // namespace

void ValueEditor::fillWith(QWidget *widget)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    widget->setMinimumWidth(1);
}

ValueEditor *createValueEditor(const QMetaProperty &property)
{
    const int type = property.userType();
    if (!property.isWritable())
        return new ShownOnly;
    if (type == qMetaTypeId<Qt::Alignment>())
        return new AlignmentEditor;
    if (property.isEnumType() && !property.isFlagType())
        return new EnumEditor(property.enumerator());
    if (NumbersEditor::canEdit(type))
        return new NumbersEditor(type);
    switch (type) {
    case QMetaType::Bool:
        return new BoolEditor;
    case QMetaType::QString:
        return new TextEditor;
    case QMetaType::QColor:
        return new ColorEditor;
    case QMetaType::QFont:
        return new FontEditor;
    case QMetaType::QPixmap:
        return new PictureEditor;
    default:
        return new ShownOnly;
    }
}
