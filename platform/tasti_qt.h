#pragma once

#include <QKeyEvent>

#include "core/controlli.h"

// A key event of the toolkit as the logic sees it. The numeric pad counts as the keys it types.
Pressione Da_QKeyEvent(const QKeyEvent& evento);
