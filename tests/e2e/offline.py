"""What was fetched once is there after a restart without a network; without a cache the reason is
told."""

import desktop
import watched
from desktop import expect, wait_for


def the_catalog_is_fetched(window, catalog):
    window.key("ctrl+3")
    window.press("push button", "Fetch All")
    window.says(f"Showing 250 of {catalog.count} packages")


def the_fetch_is_remembered(window):
    window.get("label", contains="Catalog metadata fresh: ")
    window.key("ctrl+3")
    window.get("heading", "No Packages Found")
    window.get("label", contains="Catalog fresh: ")


def the_cache_is_loaded(window, catalog):
    window.tab_to("push button", "Load Cached All")
    window.key("Return")
    window.says(f"Showing 250 of {catalog.count} packages")
    window.has_focus("push button", "Load Cached All")


def the_cache_is_searched(window, formula):
    window.key("ctrl+f")
    window.has_focus("text", "Package search")
    window.type(formula["name"])
    window.key("Return")
    window.get("list item", contains=f"{formula['name']}, Formula, ")
    window.get("list", contains=" matches from ")


def one_kind_alone_is_loaded(window, catalog):
    window.key("ctrl+f")
    window.key("BackSpace")
    window.key("Return")
    window.press("push button", "Load Cached Casks")
    window.says(f"Showing 250 of {len(catalog.casks)} packages")


def a_fetch_falls_back_to_the_cache(window, catalog):
    window.press("push button", "Fetch All")
    window.get("notification",
               contains=f"The cached catalog is shown. Showing 250 of {catalog.count} packages")
    window.get("push button", "Try Again")
    expect(not window.find("heading", "Could Not Load Catalog"), "the cache does not help")


def the_cache_is_cleared(window):
    window.key("ctrl+8")
    window.tab_to("push button", "Clear Metadata Cache")
    window.key("Return")
    window.press("push button", "Clear Cache")
    window.says("Metadata cache cleared")


def without_a_cache_the_reason_is_told(window):
    window.key("ctrl+3")
    window.get("heading", "Browse Catalog")
    window.press("push button", "Fetch All")
    window.get("heading", "Could Not Load Catalog")
    wait_for("the reason", lambda: any(
        node.name.startswith("Could Not Load Catalog. ") and len(node.name) > 30
        for node in window.find_all("notification")))
    window.reads(("list", "Sections"), ("heading", "Browse Catalog"), ("push button", "Fetch All"),
                 ("heading", "Could Not Load Catalog"))


def tell(stage):
    with desktop.temporary_home() as home:
        catalog = stage.catalog(f"{home}/served")
        with stage.server(catalog, home) as server:
            window = stage.open(home, server.variables)
            window.step(desktop.take_first_steps)
            window.step(the_catalog_is_fetched, catalog)
            window.quit()

        window = stage.open(home, server.variables)
        window.step(the_fetch_is_remembered)
        window.step(the_cache_is_loaded, catalog)
        window.step(the_cache_is_searched, catalog.a_formula())
        window.step(one_kind_alone_is_loaded, catalog)
        window.step(a_fetch_falls_back_to_the_cache, catalog)
        window.step(the_cache_is_cleared)
        window.step(without_a_cache_the_reason_is_told)
        window.quit()
        expect(server.requests == ["GET /api/formula.json", "GET /api/cask.json"],
               f"asked for {server.requests}")


if __name__ == "__main__":
    watched.tell(tell)
