#pragma once

#include "shell/FeedbackMail.h"

class QGuiApplication;

/// What the build says of the program.
namespace program {

/// Name, version, icon and type face of the application.
void describe(QGuiApplication &application);

/// What a feedback mail says of the program and where it goes.
feedback::Program feedbackProgram();

} // namespace program
