// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// Assembling the style sheet and setting it on a window beside setting the ready text.

#include "support/Sandbox.h"
#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int rows = 20;

/*! A dialog of 160 controls. */
std::unique_ptr<QDialog> dialog()
{
    auto window = std::make_unique<QDialog>();
    auto *layout = new QVBoxLayout(window.get());
    for (int i = 0; i < rows; ++i) {
        auto *row = new QHBoxLayout;
        for (QWidget *control :
             std::initializer_list<QWidget *>{new QLabel, new QLineEdit, new QComboBox, new QSpinBox, new QCheckBox,
                                              new QProgressBar, new QPushButton, new QPushButton}) {
            row->addWidget(control);
        }
        layout->addLayout(row);
    }
    window->show(); // hidden controls would be styled later
    return window;
}

void styleSheet_readyText(benchmark::State &state)
{
    const std::unique_ptr<QDialog> window = dialog();
    ZYX_zglv6::setCustomStyleSheet(window.get(), ZYX_zglv6::QssLoadBaseSheets, QString());
    const QString text = window->styleSheet();
    for ([[maybe_unused]] auto round : state) {
        window->setStyleSheet(text);
    }
}

void styleSheet_assembled(benchmark::State &state)
{
    const std::unique_ptr<QDialog> window = dialog();
    for ([[maybe_unused]] auto round : state) {
        ZYX_zglv6::setCustomStyleSheet(window.get(), ZYX_zglv6::QssLoadBaseSheets, QString());
    }
}

BENCHMARK(styleSheet_readyText)->Unit(benchmark::kMillisecond);
BENCHMARK(styleSheet_assembled)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const TestSupport::Sandbox sandbox;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ZYX_zglv6::addApplicationFonts();
    ZYX_zglv6::CLanguageManager::getInstance().loadLanguageForApp();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
