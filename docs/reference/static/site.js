// What the pages do in a browser: tabs of languages, and a search that understands questions. Everything is there
// without this file, as a list of blocks and as plain results.
"use strict";

// A group of blocks with captions becomes tabs; the language that was chosen last is shown on every page.
function makeTabs(group) {
  const panels = [...group.querySelectorAll(":scope > .literal-block-wrapper")];
  const titles = panels.map(panel => panel.querySelector(".code-block-caption .caption-text").textContent);
  const list = document.createElement("div");
  list.className = "tabs";
  list.setAttribute("role", "tablist");
  const tabs = titles.map((title, i) => {
    const tab = document.createElement("button");
    tab.className = "tab";
    tab.textContent = title;
    tab.setAttribute("role", "tab");
    tab.addEventListener("click", () => { localStorage.setItem("language", title); showLanguage(title); });
    tab.addEventListener("keydown", event => {
      const step = { ArrowLeft: -1, ArrowRight: 1 }[event.key];
      if (step) { const next = tabs[(i + step + tabs.length) % tabs.length]; next.focus(); next.click(); }
    });
    panels[i].setAttribute("role", "tabpanel");
    panels[i].setAttribute("aria-label", title);
    return tab;
  });
  list.append(...tabs);
  group.prepend(list);
  group.classList.add("tabbed");
  group.show = title => {
    const chosen = Math.max(titles.indexOf(title), 0);
    panels.forEach((panel, i) => { panel.hidden = i !== chosen; });
    tabs.forEach((tab, i) => { tab.setAttribute("aria-selected", i === chosen); tab.tabIndex = i === chosen ? 0 : -1; });
  };
}

function showLanguage(title) {
  document.querySelectorAll(".languages.tabbed").forEach(group => group.show(title));
}

// The words of a question that say nothing about its subject would have to stand on a page otherwise.
const questionWords = /\b(how|what|which|where|can|could|do|does|i|my|me|we|you|is|are|to|the|a|an|want|need|function)\b|[?!.,]/gi;

// Each page once among the results, with what it is about. The results come one by one.
function tidyResults(results) {
  new MutationObserver(() => {
    for (const item of results.querySelectorAll("ul.search > li:not([data-tidy])")) {
      item.dataset.tidy = "";
      const seen = item.parentElement.pagesSeen ??= new Set();
      const page = item.querySelector("a").getAttribute("href").split(/[?#]/)[0];
      if (seen.has(page)) { item.remove(); continue; }
      seen.add(page);
      item.querySelector("span")?.remove();
      const brief = document.createElement("p");
      brief.className = "brief";
      brief.textContent = briefs[page] ?? "";
      item.append(brief);
    }
  }).observe(results, { childList: true, subtree: true });
}

document.addEventListener("DOMContentLoaded", () => {
  document.querySelectorAll(".languages").forEach(makeTabs);
  showLanguage(localStorage.getItem("language"));
  const results = document.getElementById("search-results");
  if (results) {
    tidyResults(results);
    const query = Search.query;
    Search.query = text => query(/^(how|what|which|where|can|could|do|does|i)\b/i.test(text)
      ? text.replace(questionWords, " ").replace(/\s+/g, " ").trim() || text : text);
  }
});
