
// Appended to Doxygen's search.js, whose search finds only what begins with the typed letters: this one finds names and
// titles that contain every typed word, so that "unit" finds getUnit(). It reads Doxygen's own index.
(function () {
  'use strict';
  var label = 'Search';
  var folder = '';
  var entries = null;
  var chosen = 0;

  function field() { return document.getElementById('MSearchField'); }

  function list() {
    var found = document.getElementById('found');
    if (!found) {
      found = document.createElement('div');
      found.id = 'found';
      document.body.appendChild(found);
    }
    return found;
  }

  // How well a word fits a name: all of it, the beginning of a word in it (getUnit, SNAP_TYPE), or a part.
  function rank(name, word) {
    var place = name.toLowerCase().indexOf(word);
    if (place < 0) return 4;
    if (name.length === word.length) return 0;
    return place === 0 || /[A-Z]/.test(name[place]) || /[^A-Za-z]/.test(name[place - 1]) ? 1 : 2;
  }

  // The index is a script for each first letter, and each sets the same variable.
  function take(rows) {
    rows.forEach(function (row) {
      row[1].slice(1).forEach(function (place) {
        var url = place[0].replace(/^\.\.\//, '');
        var kind = /^group__[^#]*$/.test(url) ? 'topic' : /^(md_|index|project|pages)[^#]*$/.test(url) ? 'guide' : '';
        var scope = place[2].replace(/\(.*/, '');
        var name = row[1][0];
        if (scope.slice(-name.length - 2) === '::' + name) scope = scope.slice(0, -name.length - 2);
        var order = kind ? 0 : /^KVCAM::UIAPI(::Ext)?$/.test(scope) ? 1 : 4; // members of classes come last
        entries.push({ name: name, scope: kind || scope, url: folder + url, order: order });
      });
    });
  }

  function load() {
    if (entries) return;
    entries = [];
    for (var i = 0; i < indexSectionsWithContent[0].length; ++i) {
      var script = document.createElement('script');
      script.src = folder + 'search/all_' + i.toString(16) + '.js';
      script.onload = function () { take(searchData); show(); };
      document.head.appendChild(script);
    }
  }

  function matches() {
    var words = field().value.toLowerCase().split(/\s+/).filter(Boolean);
    if (!words.length) return [];
    var seen = {};
    return entries.map(function (entry) {
      var best = 4;
      for (var i = 0; i < words.length; ++i) {
        if ((entry.name + ' ' + entry.scope).toLowerCase().indexOf(words[i]) < 0) return null;
        best = Math.min(best, rank(entry.name, words[i]));
      }
      return best === 4 ? null : { entry: entry, rank: best * 2 + entry.order };
    }).filter(function (match) {
      var key = match && match.entry.name + ' ' + match.entry.scope;
      var isNew = match && !seen[key];
      seen[key] = true;
      return isNew;
    }).sort(function (a, b) {
      return a.rank - b.rank || a.entry.name.length - b.entry.name.length || (a.entry.name < b.entry.name ? -1 : 1);
    }).slice(0, 40).map(function (match) { return match.entry; });
  }

  function close() { list().style.display = 'none'; }

  function show() {
    var results = matches();
    var found = list();
    found.innerHTML = results.map(function (entry) {
      return '<a href="' + entry.url + '"><b>' + entry.name + '</b> ' + entry.scope + '</a>';
    }).join('') || (field().value.trim() ? '<p>Nothing has that in its name.</p>' : '');
    var box = field().getBoundingClientRect();
    found.style.top = box.bottom + 8 + 'px';
    found.style.display = found.innerHTML ? 'block' : 'none';
    chosen = Math.max(0, Math.min(chosen, results.length - 1));
    if (results.length) {
      found.children[chosen].className = 'chosen';
      found.children[chosen].scrollIntoView({ block: 'nearest' });
    }
  }

  SearchBox = function (name, path) {
    folder = path.replace(/search\/?$/, '');
    this.OnSearchFieldFocus = function (isActive) {
      field().value = field().value === label ? '' : field().value;
      field().placeholder = label;
      if (isActive) { load(); show(); } else { setTimeout(close, 200); } // a click on a result comes first
    };
    this.OnSearchFieldChange = function (event) {
      var links = list().getElementsByTagName('a');
      if (event.key === 'Escape') { field().value = ''; }
      if (event.key === 'Enter' && links.length) { window.location = links[chosen].href; return; }
      chosen = event.key === 'ArrowDown' ? chosen + 1 : event.key === 'ArrowUp' ? chosen - 1 : 0;
      show();
    };
    this.CloseResultsWindow = close;
    this.OnSearchSelectShow = this.OnSearchSelectHide = this.OnSearchSelectKey = function () {};
  };
  init_search = function () {};
})();
