#pragma once
#include <string>

#include "addin/shared/AddinState.h"
#include "purge/walk/PurgeWalk.h"
#include "ui/Form.h"

namespace purge {

// "Purge Results": walks the active document and everything it references, lists each
// file's state, purges the read-only files whose attribute it may reset, and saves the
// list as a log.
class frmPurge : public ui::Form, public PurgeSink {
public:
    explicit frmPurge(addin::AddinState& state);

    // PurgeSink: the walk writes into lstResults and yields to the message loop.
    void AddLine(const std::string& line) override;
    void Yield() override;
    bool StopRequested() const override { return stop_; }

protected:
    void Build() override;

private:
    void cmdStart_Click();
    void cmdStop_Click();
    void cmdDone_Click();
    void cmdSaveLog_Click();
    // Writes every result line, each ended by CR LF; an existing file is replaced.
    void WriteLog(const std::string& fullFileName);

    addin::AddinState& state_;
    bool stop_ = false;
};

}  // namespace purge
