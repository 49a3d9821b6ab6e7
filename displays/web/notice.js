// Shows one sentence that says why the program does not run. It comes before the program and uses
// only what every browser understands.
function sayInstead(sentence) {
  var notice = document.getElementById('notice');
  if (!notice.hidden) return;
  notice.textContent = sentence;
  notice.hidden = false;
  document.getElementById('waiting').hidden = true;
  document.getElementById('vamo').hidden = true;
}
// Whether the program can run; if not, the page says why. It prepares the browser for WebAssembly, so
// it is called after the first paint.
function canRun() {
  // A module with one function that contains a try and a catch_all.
  var withExceptions = [0, 97, 115, 109, 1, 0, 0, 0, 1, 4, 1, 96, 0, 0, 3, 2, 1, 0, 10, 8, 1, 6, 0,
    6, 64, 25, 11, 11];
  if (!window.WebAssembly || !WebAssembly.validate(new Uint8Array(withExceptions))) {
    sayInstead(
      'Vamo needs a newer browser: at least Firefox 102, Chrome 97 or Safari 16, all of 2022.');
    return false;
  }
  try {
    new WebAssembly.Module(new Uint8Array(withExceptions));
  } catch (error) {
    sayInstead("Vamo is kept from computing: the content policy of this page's server would have to" +
      " allow 'wasm-unsafe-eval' for its scripts.");
    return false;
  }
  return true;
}
// A saved copy of the page may show what happened before it was saved.
document.getElementById('notice').hidden = true;
document.getElementById('vamo').hidden = false;
