#include "shell/TellFailures.h"

#include <exception>
#include <new>
#include <system_error>

#include "shell/modFailure.h"

namespace tarnwick {

void TellFailures(Messages& say, std::string_view activity, std::string_view procedure,
                  const std::function<void()>& act) {
  try {
    act();
  } catch (const std::bad_alloc&) {
    say.Show(FailureBox(activity, std::make_error_code(std::errc::not_enough_memory), procedure));
  } catch (const std::system_error& failure) {
    say.Show(FailureBox(activity, failure.code(), procedure));
  } catch (const std::exception&) {  // an oversight of ours: the design that is open must not go with it
    say.Show(FailureBox(activity, std::make_error_code(std::errc::invalid_argument), procedure));
  }
}

}  // namespace tarnwick
