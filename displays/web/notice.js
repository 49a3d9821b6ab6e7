// Says in one sentence why the program does not run, where it does not. It comes before the program
// and is written so that every browser understands it.
(function () {
  // A module whose one function has a try and a catch_all.
  var withExceptions = [0, 97, 115, 109, 1, 0, 0, 0, 1, 4, 1, 96, 0, 0, 3, 2, 1, 0, 10, 8, 1, 6, 0,
    6, 64, 25, 11, 11];
  var notice = document.getElementById('notice');
  function say(sentence) {
    if (!notice.hidden) return;
    notice.textContent = sentence;
    notice.hidden = false;
    document.getElementById('vamo').hidden = true;
  }
  function stopped() {
    say('Vamo has stopped because of an error. Load this page again to start it anew.');
  }
  // Older browsers refuse it because of what it has, or because of the content policy.
  try {
    new WebAssembly.Module(new Uint8Array(withExceptions));
  } catch (error) {
    say('Vamo needs a newer browser: at least Firefox 102, Chrome 97 or Safari 16, all of 2022.');
  }
  window.addEventListener('error', stopped);
  window.addEventListener('unhandledrejection', stopped);
})();
