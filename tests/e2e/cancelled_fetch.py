"""A fetch that takes too long is cancelled, and what was there before is there again."""

import desktop
import watched
from desktop import expect, wait_for

LOADING = "Fetching Homebrew package metadata..."


def the_fetch_shows_how_far_it_is(window):
    window.key("ctrl+3")
    window.tab_to("push button", "Fetch All")
    window.key("Return")
    window.says(LOADING)
    progress = window.get("progress bar", LOADING)
    wait_for("bytes", lambda: "B" in progress.description)
    before = progress.description
    wait_for("more bytes", lambda: progress.description != before)


def it_is_cancelled(window):
    window.tab_to("push button", "Cancel")
    window.key("Return")
    window.gone("progress bar", LOADING)
    window.get("heading", "No Packages Found")
    window.get("label", contains="Catalog unavailable.")
    expect(not window.is_on("Load Cached All"), "half a document was kept")


def the_keyboard_is_not_lost(window):
    window.key("Tab")
    wait_for("a focus", lambda: window.focused())


def only_what_was_asked_for_came(window, server):
    expect(server.requests == ["GET /api/formula.json"], f"asked for {server.requests}")


def tell(stage):
    with desktop.temporary_home() as home:
        catalog = stage.catalog(f"{home}/served")
        with stage.server(catalog, home, piece=2_000, pause=10) as server:
            window = stage.open(home, server.variables)
            window.step(desktop.take_first_steps)
            window.step(the_fetch_shows_how_far_it_is)
            window.step(it_is_cancelled)
            window.step(the_keyboard_is_not_lost)
            window.step(only_what_was_asked_for_came, server)
            window.quit()


if __name__ == "__main__":
    watched.tell(tell)
