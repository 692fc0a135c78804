# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-plain-text finds the places that let Qt guess what a text is, and nothing else."""
import unittest

from SourceCheck import SourceCheckTest

GUESSING = """\
field->setToolTip(name);
field->setToolTip(u"<b>bold</b>"_s);
QToolTip::showText(place, name);
case Qt::ToolTipRole:\\n    return m_model.name(row);
auto *label = new QLabel(name);
QLabel label(name);
auto label = std::make_unique<QLabel>(name);
class Caption : public QLabel
label->setTextFormat(Qt::AutoText);
QMessageBox::warning(this, name, name);
QMessageBox box;
QTextDocument document;
document.setHtml(name);
field->setWhatsThis(name);
setWindowTitle(name);
setWindowTitle(u"Records[*]"_s);
menu->addAction(icon, name);
tabs->addTab(page, name);
case Qt::DisplayRole:\\n    return m_model.name(row);
case Qt::EditRole:
box->addItems(names);
box->addItem(name);
box->setItemText(0, name);
box->insertItem(0, name);
field->setText(name);
field->setText(isOurs ? localized("Ours") : name);
setText(m_model.text());
field->setPlaceholderText(name);
"""
PLAIN = """\
// QLabel label(name);
#include <QMessageBox>
class QLabel;
field->setToolTip(plainToolTip(name));
icon->setToolTip(u"Quillon"_s);
case Qt::ToolTipRole:\\n    return plainToolTip(m_model.name(row));
QLabel *m_name;
void show(QLabel &label);
auto *label = plainLabel(name);
label->setTextFormat(Qt::PlainText);
setWindowTitle(u"Quillon"_s);
setWindowTitle(localized("Preferences"));
QAction *made = submenu->addAction(QString());
addAction(action);
case Qt::DisplayRole:\\n    return plainEntry(m_model.name(row));
box->addItem(plainLine(name), name);
grid->addItem(\\n    new QSpacerItem(1, 0), 1, 1);
field->setText(plainLine(name));
field->setText(u"–"_s);
field->setText(!known ? QString() : active ? localized("Active") : localized("Inactive"));
field->setPlaceholderText(plainLine(name));
"""


class CheckPlainTextTest(SourceCheckTest):
    check = "check-plain-text"

    def problems_of(self, path, text):
        self.write(path, text)
        return self.problems()

    def test_tells_of_each_place_that_lets_qt_guess(self):
        for line in GUESSING.splitlines():
            self.assertEqual(len(self.problems_of("src/ui/Page.cpp", line.replace("\\n", "\n"))), 1, line)

    def test_allows_what_cannot_be_anything_but_text(self):
        for line in PLAIN.splitlines():
            self.assertEqual(self.problems_of("src/ui/Page.cpp", line.replace("\\n", "\n")), [], line)

    def test_says_where(self):
        self.assertEqual(self.problems_of("src/ui/Page.cpp", "// One\n/* Two\n*/\nsetStatusTip(name);"),
                         ["src/ui/Page.cpp:4: setStatusTip(: there is no plain form of it"])

    def test_refuses_a_folder_without_sources(self):
        self.assertEqual(len(self.problems_of("src/notes.txt", "setStatusTip(name);")), 1)


if __name__ == "__main__":
    unittest.main()
