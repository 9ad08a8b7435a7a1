#pragma once

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>
#include <memory>

#include "running_program.h"

namespace tendo {

/// A window of the test's own, with fields one below the other.
class FieldsWindow : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        window = std::make_unique<QWidget>();
        new QVBoxLayout(window.get());
    }
    void TearDown() override {
        window.reset();
        RunningProgram::TearDown();
    }

    template <class Control>
    Control* Add(Control* control, const char* name = "") {
        control->setObjectName(name);
        window->layout()->addWidget(control);
        return control;
    }
    void ShowWindow() const {
        window->show();
        window->activateWindow();
        QApplication::processEvents();
    }

    std::unique_ptr<QWidget> window;
};

}  // namespace tendo
