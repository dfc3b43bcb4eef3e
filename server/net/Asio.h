#pragma once

// Boost 1.74 uses std::exchange in its awaitable header without including it.
#include <utility>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/thread_pool.hpp>
#include <boost/asio/use_awaitable.hpp>

#include <type_traits>

namespace server {

namespace asio = boost::asio;

// Runs the action on one of the pool's threads and resumes on the caller's with what it returned or threw.
template <class Action>
asio::awaitable<std::invoke_result_t<Action&>> runOn(asio::thread_pool& pool, Action action) {
    using Result = std::invoke_result_t<Action&>;
    auto on = [](Action job) -> asio::awaitable<Result> { co_return job(); };
    co_return co_await asio::co_spawn(pool, on(std::move(action)), asio::use_awaitable);
}

} // namespace server
