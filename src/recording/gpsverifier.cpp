#include "recording/gpsverifier.h"

#include "patch/tpatchreader.h"
#include "recording/gpspatchexpectation.h"

#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <vector>

using TPatch::PatchMessage;

namespace {

GpsCheck check(GpsCheck::Verdict verdict, PatchMessage title, PatchMessage detail = {},
               QVector<PatchMessage> items = {})
{
    GpsCheck c;
    c.verdict = verdict;
    c.title = std::move(title);
    c.detail = std::move(detail);
    c.items = std::move(items);
    return c;
}

// The same file under two names (a relative and an absolute path, a
// symbolic link) is still the same file.
QString fileIdentity(const QString &path)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
}

QString universeList(const QVector<quint16> &universes)
{
    QStringList shown;
    for (int i = 0; i < universes.size() && i < GpsCheck::kMaxListedItems; ++i)
        shown.append(TPatch::formatPortAddress(universes.at(i)));
    QString out = shown.join(QStringLiteral(", "));
    if (universes.size() > GpsCheck::kMaxListedItems)
        out += QLatin1Char(' ') + PatchMessage(QT_TRANSLATE_NOOP("TPatch", "(+%1 more)"),
                                               {qint64(universes.size() - GpsCheck::kMaxListedItems)})
                                      .text();
    return out;
}

// The readable members with their group's expectation.
struct Checked
{
    const GpsSetMember *member;
    const GpsGroupExpectation *group;
};

class Run
{
public:
    Run(const GpsPatchExpectation &expected, const std::vector<Checked> &readable, GpsVerification *out)
        : m_expected(expected), m_readable(readable), m_out(out)
    {
    }

    void gpsBlocks();
    void universeCounts();
    void recordOrder();
    void frameBytes();
    void wholeFrames();
    void lengths();
    void headerFrameCounts();
    void timestamps();
    void coverageAndSharing();

private:
    bool anyGps() const
    {
        return std::any_of(m_readable.cbegin(), m_readable.cend(),
                           [](const Checked &c) { return c.member->gpsSync; });
    }

    const GpsPatchExpectation &m_expected;
    const std::vector<Checked> &m_readable;
    GpsVerification *m_out;
};

void Run::gpsBlocks()
{
    QVector<PatchMessage> plain;
    for (const Checked &c : m_readable)
        if (!c.member->gpsSync)
            plain.append(PatchMessage("%1", {c.member->fileName()}));
    if (plain.isEmpty()) {
        m_out->add(check(
            GpsCheck::Pass,
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "All %1 file(s) carry the %2-byte GPS metadata block"),
                         {qint64(m_readable.size()), qint64(GpsMetadataBlock::kSize)})));
        return;
    }
    const qint64 count = plain.size();
    m_out->add(
        check(GpsCheck::Fail,
              PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 file(s) are not GPS-Sync recordings"), {count}),
              PatchMessage(QT_TRANSLATE_NOOP(
                  "TPatch", "%1 - these files begin directly with an Art-Net packet, with no GPS metadata "
                            "block in front of it. They were recorded with GPS Sync Compatible Record OFF "
                            "and belong in the Standard Art-Net tab.")),
              plain));
}

void Run::universeCounts()
{
    if (m_expected.drawableUniverses.isEmpty()) {
        m_out->add(check(
            GpsCheck::Warn,
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Patch has no drawable universes to compare against")),
            PatchMessage(QT_TRANSLATE_NOOP("TPatch",
                                           "The recordings will still play, but nothing verifies that their "
                                           "universe layout matches this patch."))));
        return;
    }
    QVector<PatchMessage> wrong;
    for (const Checked &c : m_readable) {
        const int has = c.member->recording->recordsPerFrame();
        if (has != c.group->recordCount())
            wrong.append(PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1: file has %2, patch expects %3"),
                                      {c.group->name, qint64(has), qint64(c.group->recordCount())}));
    }
    if (wrong.isEmpty()) {
        m_out->add(check(GpsCheck::Pass,
                         PatchMessage(QT_TRANSLATE_NOOP(
                             "TPatch", "Universe count per frame matches the patch in every group"))));
        return;
    }
    m_out->add(check(
        GpsCheck::Fail,
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Universe count per frame does not match the patch")),
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1. The recording was made from a different patch, or a "
                                                 "file is assigned to the wrong group.")),
        wrong));
}

void Run::recordOrder()
{
    QVector<PatchMessage> wrong;
    for (const Checked &c : m_readable) {
        const QVector<RecordRef> frame = c.member->recording->frameRecords(0);
        const int compared = std::min(int(frame.size()), c.group->recordCount());
        for (int i = 0; i < compared; ++i) {
            const quint16 u = frame.at(i).universe;
            if (c.group->slotAccepts(i, u))
                continue;
            // Records are counted from 1 here, as a technician counts them
            // down a list; frames elsewhere in the report are indices from 0.
            wrong.append(PatchMessage(
                QT_TRANSLATE_NOOP("TPatch",
                                  "%1 (record %2 is universe %3, patch expects %4; expected order %5)"),
                {c.group->name, qint64(i + 1), TPatch::formatPortAddress(u),
                 TPatch::formatPortAddress(c.group->portAddresses.at(i)),
                 universeList(c.group->portAddresses)}));
            break;
        }
    }
    if (wrong.isEmpty()) {
        m_out->add(check(GpsCheck::Pass,
                         PatchMessage(QT_TRANSLATE_NOOP(
                             "TPatch", "Record order inside a frame matches the patch in every group"))));
        return;
    }
    m_out->add(check(
        GpsCheck::Fail,
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Record order inside a frame does not match the patch")),
        PatchMessage(QT_TRANSLATE_NOOP(
            "TPatch",
            "%1. Every pixel still lights up, but on the wrong torvoverse - this is the failure that looks "
            "correct at a glance. Note: MOX writes the universe field of a GPS record as "
            "(subNet<<8)|universe, while the wire uses the 15-bit PortAddress; the two only differ when a "
            "universe number is above 15.")),
        wrong));
}

void Run::frameBytes()
{
    if (!anyGps())
        return;
    QVector<PatchMessage> wrong;
    for (const Checked &c : m_readable) {
        const GpsSetMember &m = *c.member;
        if (!m.gpsSync)
            continue;
        // Numbers from the block can be anything: kept as text so that no
        // value is ever shown wrapped.
        const QString header = QString::number(m.block.frameByteSize);
        if (m.block.frameByteSize != quint64(m.measuredFrameBytes))
            wrong.append(PatchMessage(
                QT_TRANSLATE_NOOP("TPatch", "%1: header says %2 bytes per frame, the file measures %3"),
                {m.fileName(), header, m.measuredFrameBytes}));
        quint64 sum = 0;
        const int used = std::min<int>(m.block.universeCount, GpsMetadataBlock::kMaxUniverses);
        for (int i = 0; i < used; ++i)
            sum += m.block.universeByteLength[size_t(i)];
        if (sum != m.block.frameByteSize)
            wrong.append(PatchMessage(
                QT_TRANSLATE_NOOP("TPatch", "%1: universeByteLength sums to %2 but frameByteSize says %3"),
                {m.fileName(), qint64(sum), header}));
    }
    if (wrong.isEmpty()) {
        m_out->add(check(GpsCheck::Pass,
                         PatchMessage(QT_TRANSLATE_NOOP(
                             "TPatch", "Frame byte size in the header matches the packets on disk"))));
        return;
    }
    m_out->add(check(
        GpsCheck::Fail, PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Frame byte size in the header is wrong")),
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1. A GPS device seeks by frameByteSize; a wrong value "
                                                 "makes it land in the middle of a packet.")),
        wrong));
}

void Run::wholeFrames()
{
    QVector<PatchMessage> wrong;
    for (const Checked &c : m_readable) {
        const GpsSetMember &m = *c.member;
        const qint64 usable = m.recording->parsedBytes();
        const qint64 expected = m.measuredFrameBytes * m.frameCount;
        if (usable != expected)
            wrong.append(PatchMessage(
                QT_TRANSLATE_NOOP("TPatch", "%1: %2 usable byte(s), %3 expected for %4 frame(s)"),
                {m.fileName(), usable, expected, m.frameCount}));
    }
    if (wrong.isEmpty()) {
        m_out->add(
            check(GpsCheck::Pass, PatchMessage(QT_TRANSLATE_NOOP(
                                      "TPatch", "Every frame occupies exactly the same number of bytes"))));
        return;
    }
    m_out->add(check(
        GpsCheck::Warn,
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Some files carry bytes that do not form a whole frame")),
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1. The recording was cut short, or the universe lengths "
                                                 "changed while it was running.")),
        wrong));
}

void Run::lengths()
{
    qint64 shortest = std::numeric_limits<qint64>::max();
    qint64 longest = 0;
    QVector<PatchMessage> counts;
    for (const Checked &c : m_readable) {
        shortest = std::min(shortest, c.member->frameCount);
        longest = std::max(longest, c.member->frameCount);
        counts.append(PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1: %2"),
                                   {c.member->fileName(), c.member->frameCount}));
    }
    if (shortest == longest) {
        m_out->add(check(
            GpsCheck::Pass,
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "All %1 recording(s) are exactly %2 frame(s) long"),
                         {qint64(m_readable.size()), shortest})));
        return;
    }
    m_out->add(check(
        GpsCheck::Fail,
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Recordings differ in length by %1 frame(s)"),
                     {longest - shortest}),
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1. GPS devices stay locked by frame index, so the show "
                                                 "falls apart as soon as the shortest file ends. Playback "
                                                 "here stops at frame %2."),
                     {shortest}),
        counts));
}

void Run::headerFrameCounts()
{
    if (!anyGps())
        return;
    QVector<PatchMessage> wrong;
    for (const Checked &c : m_readable) {
        const GpsSetMember &m = *c.member;
        if (m.gpsSync && qint64(m.block.frameCount) != m.frameCount)
            wrong.append(PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1: header says %2, file holds %3"),
                                      {m.fileName(), qint64(m.block.frameCount), m.frameCount}));
    }
    if (wrong.isEmpty()) {
        m_out->add(
            check(GpsCheck::Pass, PatchMessage(QT_TRANSLATE_NOOP(
                                      "TPatch", "Frame count in the header matches the packets on disk"))));
        return;
    }
    m_out->add(check(
        GpsCheck::Warn, PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Frame count in the header is out of date")),
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1. MOX writes this number when the recording is "
                                                 "stopped; a zero or stale value means the recording was "
                                                 "never closed properly.")),
        wrong));
}

void Run::timestamps()
{
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (const Checked &c : m_readable)
        shortest = std::min(shortest, c.member->frameCount);
    int intraSpread = 0;
    QString intraGroup;
    int stamped = 0;
    // File by file, then frame by frame: each file is read front to back
    // (a frame-major walk would jump between 16 files on every frame and
    // cost a cache miss per stamp). The frame's lowest and highest stamp
    // across files are gathered on the way.
    std::vector<int> low(size_t(shortest), 65536);
    std::vector<int> high(size_t(shortest), -1);
    for (const Checked &c : m_readable) {
        const Recording &r = *c.member->recording;
        const int perFrame = r.recordsPerFrame();
        if (perFrame < 1)
            continue;
        ++stamped;
        for (qint64 frame = 0; frame < shortest; ++frame) {
            const int t0 = r.timestampOf(r.recordAt(frame, 0));
            const int tL = r.timestampOf(r.recordAt(frame, perFrame - 1));
            const int intra = std::abs(tL - t0);
            if (intra > intraSpread) {
                intraSpread = intra;
                intraGroup = c.group->name;
            }
            low[size_t(frame)] = std::min({low[size_t(frame)], t0, tL});
            high[size_t(frame)] = std::max({high[size_t(frame)], t0, tL});
        }
    }
    // The first frame with the largest spread is the one reported.
    int crossSpread = 0;
    qint64 crossFrame = 0;
    for (qint64 frame = 0; frame < shortest; ++frame) {
        const int spread = high[size_t(frame)] - low[size_t(frame)];
        if (spread > crossSpread) {
            crossSpread = spread;
            crossFrame = frame;
        }
    }
    if (intraSpread == 0 && crossSpread == 0) {
        m_out->add(
            check(GpsCheck::Pass,
                  PatchMessage(
                      QT_TRANSLATE_NOOP(
                          "TPatch", "Timestamps are in lockstep across all %1 file(s), over all %2 frame(s)"),
                      {qint64(stamped), shortest})));
    } else if (crossSpread < 1) {
        // Kept for completeness: a frame's cross-file spread includes each
        // file's own first and last stamp, so it is never below the spread
        // inside one file and whole-number stamps always reach the drift case.
        m_out->add(check(
            GpsCheck::Warn,
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Timestamps vary by up to %1 s inside a single frame"),
                         {qint64(intraSpread)}),
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Worst in group %1. All records of one frame are "
                                                     "written in the same pass and should carry one value."),
                         {intraGroup})));
    } else {
        m_out->add(check(
            GpsCheck::Fail,
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Timestamps drift by up to %1 s between files"),
                         {qint64(crossSpread)}),
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "First seen at frame %1. MOX stamps every group with "
                                                     "the same value in a given frame, so a difference means "
                                                     "these files are not from one recording session."),
                         {crossFrame})));
    }
}

void Run::coverageAndSharing()
{
    QMap<quint16, int> holders; // Port-Address -> number of members carrying it
    for (const Checked &c : m_readable) {
        QVector<quint16> own;
        for (quint16 u : c.member->recording->universes())
            own.append(c.group->toPortAddress(u));
        std::sort(own.begin(), own.end());
        own.erase(std::unique(own.begin(), own.end()), own.end());
        for (quint16 u : own)
            ++holders[u];
    }
    // Only the patch's universes count: a file may carry extra universes
    // and still leave pixels of this patch dark.
    const qint64 covered = std::count_if(m_expected.universes.cbegin(), m_expected.universes.cend(),
                                         [&holders](quint16 u) { return holders.contains(u); });
    if (covered < m_expected.universes.size()) {
        m_out->add(check(
            GpsCheck::Warn,
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "The set carries %1 universe(s); the patch has %2"),
                         {covered, qint64(m_expected.universes.size())}),
            PatchMessage(QT_TRANSLATE_NOOP(
                "TPatch", "Pixels with no record behind them stay dark for the whole run."))));
    } else {
        m_out->add(check(
            GpsCheck::Pass,
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "The set covers all %1 torvoverse(s) in the patch"),
                         {qint64(m_expected.torvoverseCount)})));
    }

    QVector<PatchMessage> shared;
    for (auto it = holders.cbegin(); it != holders.cend(); ++it)
        if (it.value() > 1)
            shared.append(PatchMessage("%1", {TPatch::formatPortAddress(it.key())}));
    if (!shared.isEmpty())
        m_out->add(check(GpsCheck::Warn,
                         PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Two or more groups share a universe")),
                         PatchMessage(QT_TRANSLATE_NOOP(
                             "TPatch", "Universe(s) %1. Two files write the same pixels and the "
                                       "last one drawn wins.")),
                         shared));
}

} // namespace

GpsVerification GpsVerifier::verify(const TPatch::PatchData *patch, std::vector<GpsSetMember> *members)
{
    return verify(patch, patch ? GpsPatchExpectation::fromPatch(*patch) : GpsPatchExpectation{}, members);
}

GpsVerification GpsVerifier::verify(const TPatch::PatchData *patch, const GpsPatchExpectation &expected,
                                    std::vector<GpsSetMember> *members)
{
    GpsVerification out;
    if (!patch) {
        out.add(check(
            GpsCheck::Fail, PatchMessage(QT_TRANSLATE_NOOP("TPatch", "No patch loaded")),
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "A GPS-Sync set is defined by the patch: one recording "
                                                     "per group. Load a .tpatch first."))));
        out.summary = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "No patch loaded."));
        return out;
    }
    const qint64 groupCount = expected.groups.size();
    members->resize(size_t(groupCount));
    for (int g = 0; g < groupCount; ++g)
        (*members)[size_t(g)].groupName = expected.groups.at(g).name;

    // 2. Every group needs its file before anything else can be judged.
    QVector<PatchMessage> missing;
    for (const GpsSetMember &m : *members)
        if (m.path.isEmpty())
            missing.append(PatchMessage("%1", {m.groupName}));
    if (!missing.isEmpty()) {
        const qint64 count = missing.size();
        out.add(check(
            GpsCheck::Fail,
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 of %2 group(s) have no recording"),
                         {count, groupCount}),
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "A GPS-Sync show is only complete when every group has "
                                                     "its own file. Missing: %1")),
            missing));
        out.summary = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 recording(s) still missing."), {count});
        return out;
    }

    // 3. What was supplied. Both counts are the same number: one file per group.
    QVector<PatchMessage> supplied;
    for (const GpsSetMember &m : *members)
        supplied.append(PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 = %2"), {m.groupName, m.fileName()}));
    GpsCheck suppliedCheck = check(
        GpsCheck::Pass,
        PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 group(s), %1 recording(s) supplied"), {groupCount}),
        PatchMessage("%1"), supplied);
    suppliedCheck.listStyle = GpsCheck::ListStyle::Lines;
    out.add(suppliedCheck);

    // 4. One file for two groups. Both still load: the rest of the report is worth having.
    QMap<QString, QStringList> groupsByFile;
    QStringList fileOrder;
    for (const GpsSetMember &m : *members) {
        const QString id = fileIdentity(m.path);
        if (!groupsByFile.contains(id))
            fileOrder.append(id);
        groupsByFile[id].append(m.groupName);
    }
    QVector<PatchMessage> reused;
    for (const QString &id : fileOrder)
        if (groupsByFile.value(id).size() > 1)
            reused.append(
                PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 (%2)"),
                             {QFileInfo(id).fileName(), groupsByFile.value(id).join(QStringLiteral(", "))}));
    if (!reused.isEmpty())
        out.add(check(
            GpsCheck::Fail,
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "The same file is assigned to more than one group")),
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1. Each group has its own recording; reusing one file "
                                                     "makes two groups play the same animation.")),
            reused));

    // 5. Load every file; each one that cannot be read is a finding of its own.
    std::vector<Checked> readable;
    qint64 unreadable = 0;
    for (int g = 0; g < groupCount; ++g) {
        GpsSetMember &m = (*members)[size_t(g)];
        m.load(patch);
        if (m.isReadable()) {
            readable.push_back(Checked{&m, &expected.groups.at(g)});
            continue;
        }
        ++unreadable;
        out.add(check(GpsCheck::Fail,
                      PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1: file cannot be read"), {m.fileName()}),
                      m.loadResult.error));
    }
    if (unreadable)
        out.unreadableSummary = PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "%1 of %2 file(s) could not be read."), {unreadable, groupCount});

    if (!readable.empty()) {
        Run run(expected, readable, &out);
        run.gpsBlocks();
        run.universeCounts();
        run.recordOrder();
        run.frameBytes();
        run.wholeFrames();
        run.lengths();
        run.headerFrameCounts();
        run.timestamps();
        run.coverageAndSharing();
    }

    // 16. A member that could not be read has no frame to play, so it holds the set at 0.
    out.frameCount = members->empty() ? 0 : std::numeric_limits<qint64>::max();
    for (const GpsSetMember &m : *members)
        out.frameCount = std::min(out.frameCount, m.frameCount);
    out.armable = out.frameCount > 0;
    if (!out.armable)
        out.summary = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "The set holds no complete frame."));
    else if (out.failures || out.warnings)
        out.summary = PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "%1 group(s) - %2 frames - %3 failure(s), %4 warning(s); "
                                        "playback is enabled so you can see them"),
            {groupCount, out.frameCount, qint64(out.failures), qint64(out.warnings)});
    else
        out.summary =
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 group(s) - %2 frames - structure and sync verified"),
                         {groupCount, out.frameCount});
    return out;
}
