#include "page_editor/window/export_dialog.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>

namespace page_editor {
namespace {

constexpr double kLeastDpi = 10.0;
constexpr double kMostDpi = 2400.0;

}  // namespace

std::optional<ExportChoices> AskHowToExport(QWidget& window, host::OutputFormat format) {
    QDialog dialog(&window);
    dialog.setWindowTitle("Export the page");
    auto* const form = new QFormLayout(&dialog);

    auto* const dpi = new QDoubleSpinBox(&dialog);
    dpi->setObjectName("dpi");
    dpi->setDecimals(1);
    dpi->setRange(kLeastDpi, kMostDpi);
    dpi->setValue(ExportChoices().dpi);
    form->addRow("Pixels per inch:", dpi);

    auto* const maps = new QComboBox(&dialog);
    maps->setObjectName("maps");
    maps->addItem("without loss", static_cast<int>(host::MapImages::Lossless));
    maps->addItem("as JPEG, smaller", static_cast<int>(host::MapImages::Jpeg));
    if (host::IsForPrint(format)) {
        form->addRow("Maps:", maps);
    } else {
        maps->hide();
    }

    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    form->addRow(buttons);
    dpi->selectAll();
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return ExportChoices{dpi->value(),
                         static_cast<host::MapImages>(maps->currentData().toInt())};
}

}  // namespace page_editor
