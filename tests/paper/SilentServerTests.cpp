// A printing system that falls silent, hangs up or dies in whatever it is asked.

#include "paper/CupsProxy.h"
#include "paper/CupsQueue.h"
#include "paper/PrintServer.h"
#include "paper/PrintTesting.h"
#include "paper/SystemPrinter.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cups/cups.h>

namespace tarn {
namespace {

using testing::CupsProxy;
using ::testing::HasSubstr;
using testing::PrintServer;
using testing::QueueSetup;
using testing::ReportOf;
using testing::UseServer;
using Fault = CupsProxy::Fault;

/// Asking for the queue, making a job, sending its document; asking for the job, cancelling it.
constexpr std::size_t RequestsOfAPrint = 3;

/// Short, but long enough for a busy machine to answer; a whole upload is never hurried.
constexpr CupsPatience ShortPatience{std::chrono::milliseconds(2500),
                                     std::chrono::milliseconds(60000)};
static_assert(CupsProxy::LateMs < ShortPatience.Answers.count() &&
              2L * CupsProxy::LateMs > ShortPatience.Answers.count());
constexpr int HangMs = 70000; ///< more than any patience

/// More than the buffers of two connections hold.
std::string LargeDocument() {
    return "%PDF-1.4\n" + std::string(std::size_t{20} * 1024 * 1024, ' ');
}

/// What went wrong with a use of the printer, in bounded time; empty when nothing did.
std::string FailureOf(const std::function<void()>& use) {
    QElapsedTimer time;
    time.start();
    std::string failure;
    try {
        use();
    } catch (const PrinterError& error) {
        failure = error.what();
    }
    EXPECT_LT(time.elapsed(), HangMs);
    return failure;
}

std::string FailureOfReport() {
    return FailureOf([] { SystemPrinter(ShortPatience).PrintReport(ReportOf(60)); });
}

std::string FailureOfLargeDocument() {
    return FailureOf([] { CupsQueue(ShortPatience).Submit("Large", LargeDocument()); });
}

/// Nothing was printed, nor will be: no job is left but such as ended or have no document. Every
/// job in `states` is in one of them.
void ExpectNothingPrinted(const PrintServer& server, const std::vector<int>& states) {
    UseServer(server.Address());
    for (const auto& [job, state] : server.JobStates()) {
        EXPECT_THAT(states, ::testing::Contains(state)) << "job " << job;
    }
    EXPECT_TRUE(server.Printed(0).empty());
}

std::vector<Fault> AfterAnswers(std::size_t answers, std::vector<Fault> faults) {
    faults.insert(faults.begin(), answers, Fault::None);
    return faults;
}

TEST(SilentServer, AProxyWithoutFaultsPrints) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), {Fault::None});
    UseServer(proxy.Address());
    EXPECT_EQ(FailureOfReport(), "");
    EXPECT_EQ(proxy.Connections(), RequestsOfAPrint);
    EXPECT_EQ(server.Printed(1).size(), 1U);
}

TEST(SilentServer, SilenceAfterEachAnswerIsGivenUp) {
    const PrintServer server({QueueSetup()});
    for (std::size_t answers = 0; answers < RequestsOfAPrint; ++answers) {
        const CupsProxy proxy(server.Address(), AfterAnswers(answers, {Fault::Silence}));
        UseServer(proxy.Address());
        EXPECT_NE(FailureOfReport(), "") << answers;
        // Nothing further is asked, but how it stands with a job that was begun.
        const bool began = answers == RequestsOfAPrint - 1;
        EXPECT_EQ(static_cast<std::size_t>(proxy.Connections()), answers + (began ? 2 : 1));
    }
    ExpectNothingPrinted(server, {IPP_JSTATE_HELD});
}

TEST(SilentServer, AJobWhoseDocumentIsNotAnsweredIsCancelled) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), AfterAnswers(2, {Fault::Silence, Fault::None}));
    UseServer(proxy.Address());
    EXPECT_EQ(FailureOfReport(), "The printing system does not answer: it keeps silent.");
    EXPECT_EQ(server.JobStates().size(), 1U);
    ExpectNothingPrinted(server, {IPP_JSTATE_CANCELED});
}

TEST(SilentServer, SilenceWhileAJobIsCancelledIsGivenUp) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(),
                          AfterAnswers(2, {Fault::Silence, Fault::None, Fault::Silence}));
    UseServer(proxy.Address());
    EXPECT_NE(FailureOfReport(), "");
    EXPECT_EQ(proxy.Connections(), 5);
    ExpectNothingPrinted(server, {IPP_JSTATE_HELD});
}

TEST(SilentServer, AnAnswerThatDripsIsGivenUp) {
    const PrintServer server({QueueSetup()});
    for (std::size_t answers = 0; answers < RequestsOfAPrint - 1; ++answers) {
        const CupsProxy proxy(server.Address(),
                              AfterAnswers(answers, {Fault::DrippingAnswer, Fault::None}));
        UseServer(proxy.Address());
        EXPECT_THAT(FailureOfReport(), HasSubstr("keeps silent")) << answers;
        EXPECT_EQ(static_cast<std::size_t>(proxy.Connections()), answers + 1);
    }
    ExpectNothingPrinted(server, {IPP_JSTATE_HELD});
}

TEST(SilentServer, AllAnswersShareOnePatience) {
    const PrintServer server({QueueSetup()});
    for (const bool twice : {false, true}) {
        const CupsProxy proxy(
            server.Address(),
            {Fault::LateAnswer, twice ? Fault::LateAnswer : Fault::None, Fault::None});
        UseServer(proxy.Address());
        EXPECT_EQ(FailureOfReport(),
                  twice ? std::string("The printing system does not answer: it keeps silent.")
                        : std::string());
        EXPECT_EQ(proxy.Connections(), twice ? 2 : 3);
    }
    EXPECT_EQ(server.Printed(1).size(), 1U);
}

TEST(SilentServer, SilenceInMidUploadIsGivenUpAndTheJobCancelled) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), AfterAnswers(2, {Fault::StuckUpload, Fault::None}));
    UseServer(proxy.Address());
    EXPECT_THAT(FailureOfLargeDocument(), HasSubstr("keeps silent"));
    EXPECT_EQ(server.JobStates().size(), 1U);
    ExpectNothingPrinted(server, {IPP_JSTATE_CANCELED});
}

TEST(SilentServer, SilenceForGoodInMidUploadIsGivenUp) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), AfterAnswers(2, {Fault::StuckUpload, Fault::Silence}));
    UseServer(proxy.Address());
    EXPECT_THAT(FailureOfLargeDocument(), HasSubstr("does not tell whether it took the job"));
    EXPECT_EQ(proxy.Connections(), 4);
    ExpectNothingPrinted(server, {IPP_JSTATE_HELD});
}

TEST(SilentServer, AHangUpInMidUploadCancelsTheJob) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), AfterAnswers(2, {Fault::HangUp, Fault::None}));
    UseServer(proxy.Address());
    EXPECT_THAT(FailureOfLargeDocument(), HasSubstr("hung up"));
    EXPECT_EQ(proxy.Connections(), 5);
    ExpectNothingPrinted(server, {IPP_JSTATE_CANCELED});
}

TEST(SilentServer, AServerKilledInMidUploadPrintsNothingWhenItIsBack) {
    PrintServer server({QueueSetup()});
    {
        const CupsProxy proxy(server.Address(), AfterAnswers(2, {Fault::HangUp}),
                              [&server] { server.Kill(); });
        UseServer(proxy.Address());
        EXPECT_NE(FailureOfLargeDocument(), "");
    }
    server.StartAgain();
    ExpectNothingPrinted(server, {IPP_JSTATE_HELD, IPP_JSTATE_ABORTED, IPP_JSTATE_CANCELED});
    SystemPrinter().PrintReport(ReportOf(1));
    EXPECT_EQ(server.Printed(1).at(0).Title, "ENTERED DATA REPORT");
}

TEST(SilentServer, AJobThatWasTakenCountsThoughTheAnswerIsLost) {
    QueueSetup slow;
    slow.Trouble = "toner-low-report";
    for (const QueueSetup& queue : {QueueSetup(), slow}) { // printed meanwhile, and not yet
        const PrintServer server({queue});
        const CupsProxy proxy(server.Address(), AfterAnswers(2, {Fault::LostAnswer, Fault::None}));
        UseServer(proxy.Address());
        EXPECT_EQ(FailureOfReport(), "");
        server.EndTrouble();
        EXPECT_EQ(server.Printed(1).size(), 1U);
    }
}

TEST(SilentServer, AJobOfWhichNothingIsKnownIsToldAsSuch) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), AfterAnswers(2, {Fault::LostAnswer, Fault::Silence}));
    UseServer(proxy.Address());
    EXPECT_THAT(FailureOfReport(), HasSubstr("does not tell whether it took the job"));
    EXPECT_EQ(server.Printed(1).size(), 1U); // it did
}

TEST(SilentServer, AJobWhoseMakingIsNotAnsweredIsNeverPrinted) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), AfterAnswers(1, {Fault::LostAnswer, Fault::None}));
    UseServer(proxy.Address());
    EXPECT_NE(FailureOfReport(), "");
    UseServer(server.Address());
    EXPECT_EQ(server.JobStates().size(), 1U);
    ExpectNothingPrinted(server, {IPP_JSTATE_HELD}); // without a document, until it is aborted
}

TEST(SilentServer, AnUploadMayTakeLongerThanAnAnswerWhileItGoesOn) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), {Fault::None});
    UseServer(proxy.Address());
    constexpr CupsPatience Patience{std::chrono::milliseconds(1000), ShortPatience.Upload};
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(FailureOf([&] { CupsQueue(Patience).Submit("Large", LargeDocument()); }), "");
    EXPECT_GT(time.elapsed(), Patience.Answers.count()) << "too quick to tell anything";
    EXPECT_EQ(server.Printed(1).at(0).Document, LargeDocument());
}

TEST(SilentServer, AnUploadIsBoundedThoughItGoesOn) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), {Fault::None});
    UseServer(proxy.Address());
    EXPECT_THAT(
        FailureOf([] {
            const CupsPatience patience{ShortPatience.Answers, std::chrono::milliseconds(300)};
            CupsQueue(patience).Submit("Large", LargeDocument());
        }),
        HasSubstr("keeps silent"));
    ExpectNothingPrinted(server, {IPP_JSTATE_CANCELED});
}

TEST(SilentServer, AServerOfTheSameAddressIsUsedAgainAfterItsSilence) {
    const PrintServer server({QueueSetup()});
    const CupsProxy proxy(server.Address(), {Fault::Silence, Fault::None});
    UseServer(proxy.Address());
    EXPECT_NE(FailureOfReport(), "");
    EXPECT_EQ(FailureOfReport(), "");
    EXPECT_EQ(server.Printed(1).size(), 1U);
}

} // namespace
} // namespace tarn
