// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include <QMetaObject>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

// Qt's libraries are not instrumented: the lock under which a call is posted to another thread is
// invisible to the thread sanitizer, and what the call brings along looks like a race. This takes
// the place of Qt's function and tells of each post; a race in what the call does is still found.

namespace {

/// A posted call: all that was written before the post is read after it.
class Posted : public QtPrivate::QSlotObjectBase
{
public:
    explicit Posted(QSlotObjectBase *call)
        : QSlotObjectBase(&impl)
        , m_call(call)
    {
        __tsan_release(this);
    }

private:
    static void impl(int operation, QSlotObjectBase *base, QObject *receiver, void **arguments,
                     bool *)
    {
        auto *const self = static_cast<Posted *>(base);
        __tsan_acquire(self);
        if (operation == Call) {
            self->m_call->call(receiver, arguments);
        } else if (operation == Destroy) {
            self->m_call->destroyIfLastRef();
            delete self;
        }
    }

    QSlotObjectBase *m_call;
};

} // namespace

bool QMetaObject::invokeMethodImpl(QObject *object, QtPrivate::QSlotObjectBase *slot,
                                   Qt::ConnectionType type, void *result)
{
    static const auto postInQt = reinterpret_cast<decltype(&invokeMethodImpl)>(
        dlsym(RTLD_NEXT,
              "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseE"
              "N2Qt14ConnectionTypeEPv"));
    return postInQt(object, new Posted(slot), type, result);
}
