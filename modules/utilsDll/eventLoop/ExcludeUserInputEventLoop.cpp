// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/eventLoop/ExcludeUserInputEventLoop.h"

#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QEvent>
#include <QtCore/QScopeGuard>

namespace {

bool isUserInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Enter:
    case QEvent::Close:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
    case QEvent::GraphicsSceneMouseMove:
    case QEvent::GraphicsSceneMousePress:
    case QEvent::GraphicsSceneMouseRelease:
    case QEvent::GraphicsSceneMouseDoubleClick:
    case QEvent::GraphicsSceneContextMenu:
    case QEvent::GraphicsSceneDragEnter:
    case QEvent::GraphicsSceneDragMove:
    case QEvent::GraphicsSceneDragLeave:
    case QEvent::GraphicsSceneDrop:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::NonClientAreaMouseButtonRelease:
    case QEvent::NonClientAreaMouseButtonDblClick:
        return true;
    default:
        return false;
    }
}

} // namespace

CExcludeUserInpuEventsFilter::CExcludeUserInpuEventsFilter(QObject *parent)
    : QObject(parent)
{
    if (parent != nullptr) {
        parent->installEventFilter(this);
    }
}

CExcludeUserInpuEventsFilter::~CExcludeUserInpuEventsFilter()
{
    if (parent() != nullptr) {
        parent()->removeEventFilter(this);
    }
}

bool CExcludeUserInpuEventsFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != nullptr && event != nullptr && isUserInput(event->type())) {
        event->setAccepted(false);
        return true;
    }
    return QObject::eventFilter(watched, event);
}

CExcludeUserInpuEventLoop::CExcludeUserInpuEventLoop(QObject *watched, QObject *parent)
    : QObject(parent)
    , m_watched(watched)
{
}

CExcludeUserInpuEventLoop::~CExcludeUserInpuEventLoop() = default;

bool CExcludeUserInpuEventLoop::isRunning() const
{
    return m_loop.isRunning();
}

int CExcludeUserInpuEventLoop::exec()
{
    if (m_loop.isRunning()) {
        ZYX_LOG('E', "The wait is already running");
        return -1;
    }
    holdInputOut();
    const auto end = qScopeGuard([this] {
        if (m_loop.isRunning()) { // an exception passes, and Qt does not mark the end
            m_loop.exit();
        }
        letInputIn();
    });
    const int result = m_loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (result != 0) {
        ZYX_LOG('E', u"Wrong exec result: " + QString::number(result));
    }
    return result;
}

void CExcludeUserInpuEventLoop::quit()
{
    exit(0);
}

void CExcludeUserInpuEventLoop::failedQuit()
{
    exit(1);
}

void CExcludeUserInpuEventLoop::exit(int returnCode)
{
    ZYX_LOG('D', u"Exit with return code: " + QString::number(returnCode));
    if (m_loop.isRunning()) {
        letInputIn();
        m_loop.exit(returnCode);
    }
}

void CExcludeUserInpuEventLoop::holdInputOut()
{
    if (m_watched != nullptr) {
        m_watched->installEventFilter(&m_filter);
    }
}

void CExcludeUserInpuEventLoop::letInputIn()
{
    if (m_watched != nullptr) {
        m_watched->removeEventFilter(&m_filter);
    }
}
