#include "tree/DlgInputName.h"

#include "catalogue/CatalogueName.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "platform/desktop/VornMessageBox.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

DlgInputName::DlgInputName(QWidget* parent, ICoordSystem* coordSystem)
    : Dialog(parent), nameEdit(new QLineEdit(this)), coordSystem(coordSystem) {
    setWindowTitle(tr("please input name"));
    nameEdit->setAccessibleName(windowTitle());

    auto* buttonBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttonBox->button(QDialogButtonBox::Ok)->setText(QObject::tr("Ok"));
    buttonBox->button(QDialogButtonBox::Cancel)->setText(QObject::tr("Cancel"));
    connect(buttonBox, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttonBox, SIGNAL(rejected()), this, SLOT(reject()));

    auto* buttonLayout = new QHBoxLayout;
    buttonLayout->addStretch();
    buttonLayout->addWidget(buttonBox);

    auto* mainLayout = new QVBoxLayout;
    mainLayout->addWidget(nameEdit);
    mainLayout->addLayout(buttonLayout);
    setLayout(mainLayout);
}

QString DlgInputName::getName() const {
    return nameEdit->text();
}

QString DlgInputName::refusal(const QString& name) const {
    if (!isCatalogueName(name))
        return tr("please input valid content!");

    if (nameType == 0) {
        if (coordSystem->hasGroup(name.toLocal8Bit().constData()))
            return tr("has same as coord group name!");
        return QString();
    }

    ICoordSysGroup* group = coordSystem->getGroup(groupName.toLocal8Bit().constData());
    if (group && group->getCoordSystem(name.toLocal8Bit().constData()))
        return tr("has same as coord system name!");
    return QString();
}

void DlgInputName::accept() {
    const QString message = refusal(nameEdit->text());
    if (!message.isNull()) {
        VornMessageBox::information_ok(this, tr("information"), message);
        return;
    }
    Dialog::accept();
}
