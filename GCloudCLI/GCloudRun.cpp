// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudRun.h"

#include "GCloudCLI/BrowserAuthHandler.h"
#include "GCloudCLI/ChildProcess.h"
#include "GCloudCLI/GCloudPathResolving.h"
#include "GCloudCLI/OutputReader.h"
#include "GCloudCLI/PipeAccumulator.h"
#include "GCloudCLI/SignInAddress.h"
#include "GCloudCLI/StopEvent.h"
#include "GCloudCLI/Utf8.h"
#include "GCloudModels/AppError.h"

#include <QCoreApplication>
#include <QPromise>

#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

AppError launchFailure(const std::system_error &error)
{
    return AppError::commandFailed(
        -1,
        QCoreApplication::translate("GCloudRun", "Failed to launch process: %1")
            .arg(QString::fromLocal8Bit(error.code().message().c_str())));
}

AppError stopped()
{
    return AppError::unknown(
        QCoreApplication::translate("GCloudRun", "gcloud was ended because Torvi is closing."));
}

void handOverSignInAddress(QByteArrayView chunk, BrowserAuthHandler &handler)
{
    if (const auto address = SignInAddress::find(chunk)) {
        handler.openAuthURL(*address);
    }
}

/// A stream that is not UTF-8 yields no text at all rather than a garbled one.
QString text(const PipeAccumulator &stream)
{
    return decodeUtf8(stream.data()).value_or(QString());
}

GCloudResult resultOf(ChildProcess &gcloud, const GCloudRun::Order &order, const StopEvent &stop)
{
    PipeAccumulator output;
    PipeAccumulator error;
    OutputReader reader(
        gcloud, stop,
        [&output](QByteArrayView chunk) {
            output.append(chunk);
            return true;
        },
        [&error, handler = order.browserAuthHandler.get()](QByteArrayView chunk) {
            error.append(chunk);
            if (handler != nullptr) {
                handOverSignInAddress(chunk, *handler);
            }
            return true;
        });
    if (reader.read({ .drain = order.drain }) != OutputReader::End::exited) {
        gcloud.end();
        throw stopped();
    }
    GCloudResult result{ .exitCode = gcloud.exitCode(),
                         .stdout = text(output),
                         .stderr = text(error) };
    reader.waitOut(); // last, so that decoding a long output costs no extra time
    return result;
}

GCloudResult runGCloud(const std::stop_token &stop, const GCloudRun::Order &order)
try {
    const QString path = order.pathResolver->resolve(stop);
    const StopEvent stopEvent(stop);
    auto gcloud = ChildProcess::start(
        { .program = path, .arguments = order.arguments, .environment = order.environment });
    return resultOf(gcloud, order, stopEvent);
} catch (const std::system_error &error) {
    throw launchFailure(error);
}

/// Whatever happens, the promise is kept: somebody awaits it.
void keepPromise(const std::stop_token &stop, const GCloudRun::Order &order,
                 QPromise<GCloudResult> &promise)
{
    try {
        promise.addResult(runGCloud(stop, order));
    } catch (...) {
        promise.setException(stop.stop_requested() ? std::make_exception_ptr(stopped())
                                                   : std::current_exception());
    }
    promise.finish();
}

} // namespace

GCloudRun::GCloudRun(Order order)
try {
    QPromise<GCloudResult> promise;
    promise.start();
    m_result = promise.future();
    m_thread = std::jthread([order = std::move(order),
                             promise = std::move(promise)](const std::stop_token &stop) mutable {
        keepPromise(stop, order, promise);
    });
} catch (const std::system_error &error) {
    throw launchFailure(error);
}

void GCloudRun::requestStop()
{
    m_thread.request_stop();
}

void GCloudRun::join()
{
    m_thread.join();
}

} // namespace torvi
