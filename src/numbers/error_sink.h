#pragma once

namespace tessarondel {

// Where the number routines report an error number (0..99). The engine's
// EngineState is the one implementation that records it; reporting never
// throws for a valid number and never stops the caller.
class ErrorSink {
public:
    virtual void ReportError(int number) = 0;

protected:
    ~ErrorSink() = default;
};

}  // namespace tessarondel
