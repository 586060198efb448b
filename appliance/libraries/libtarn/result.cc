#include "platform/Result.h"

namespace TarnAbstract {

const Result::Code Result::Succeeded = 0x80000000U;
const Result::Code Result::Failed = 0x00000001U;
const Result::Code Result::ElementNotFound = 0x00000002U;
const Result::Code Result::CapacityOverflow = 0x00000003U;
const Result::Code Result::MemoryAllocationFailure = 0x00000004U;

}  // namespace TarnAbstract
