# Compares the program's results with R's and prints the differences as tables.
#
# Usage: Rscript accuracy.R PROGRAM FOLDER
#   PROGRAM formats numbers; the file "values" in FOLDER contains its results.
arguments <- commandArgs(trailingOnly = TRUE)
program <- arguments[1]
folder <- arguments[2]

grid <- expand.grid(k = 0:999, N = 4:1000)
r <- grid$k / 1000
N <- grid$N
odd <- N %% 2 == 1
ours <- matrix(readBin(file.path(folder, "values"), "double", 5 * nrow(grid)), nrow = 5)
rownames(ours) <- c("t", "p", "z", "lo", "hi")
stopifnot(ncol(ours) == nrow(grid))

# The same quantities from R's functions, with the same 1.96 and the same limits of p.
t <- r * sqrt(N - 2) / sqrt(1 - r^2)
exact <- 2 * pt(t, N - 2, lower.tail = FALSE)
half <- 1.96 / sqrt(N - 3)
theirs <- rbind(
  t = t,
  p = ifelse(t < 0.00001, 0.99999, pmax(exact, 0.00001)),
  z = atanh(r),
  lo = tanh(atanh(r) - half),
  hi = tanh(atanh(r) + half)
)

# The texts that the window shows for these numbers.
texts <- function(values, mask) {
  numbers <- file.path(folder, "numbers")
  writeBin(values, numbers)
  system2(program, c("texts", shQuote(mask)), stdin = numbers, stdout = TRUE)
}

masks <- c(t = "#####.00", p = ".00000", z = "##0.000", lo = "+.000", hi = "+.000")
names_shown <- c(t = "t", p = "p", z = "Fisher's z", lo = "lower limit", hi = "upper limit")

largest <- function(differences, where) {
  at <- where[which.max(differences[where])]
  sprintf("%.2e at (%.3f, %d)", differences[at], r[at], N[at])
}

cat("| Result | Degrees of freedom | Cases | Largest absolute difference | Largest relative difference | Texts that differ |\n")
cat("|---|---|---|---|---|---|\n")
for (name in names(masks)) {
  a <- ours[name, ]
  b <- theirs[name, ]
  absolute <- abs(a - b)
  relative <- ifelse(b == 0, 0, absolute / abs(b))
  differ <- texts(a, masks[name]) != texts(b, masks[name])
  stopifnot(length(differ) == length(a))
  # Fisher's z does not depend on N.
  parts <- if (name == "z") list(any = which(N == 4)) else list(even = which(!odd), odd = which(odd))
  for (part in names(parts)) {
    where <- parts[[part]]
    cat(sprintf(
      "| %s | %s | %d | %s | %s | %d |\n", names_shown[name], part, length(where),
      largest(absolute, where), largest(relative, where), sum(differ[where])
    ))
  }
}

# The cases in which p and the interval disagree.
significant <- ours["p", ] < 0.05
without_zero <- ours["lo", ] > 0
describe <- function(what, where) {
  if (length(where) == 0) {
    cat(sprintf("| %s | 0 | - | - | - |\n", what))
    return()
  }
  middle <- where[which.max(abs(ours["p", where] - 0.05))]
  cat(sprintf(
    "| %s | %d | %d to %d | %.3f to %.3f | r = %.3f, N = %d: p = %.5f, lower limit %+.5f |\n", what,
    length(where), min(N[where]), max(N[where]), min(r[where]), max(r[where]), r[middle], N[middle],
    ours["p", middle], ours["lo", middle]
  ))
}
cat("\n| Disagreement | Cases | N | r | The farthest from p = .05 |\n")
cat("|---|---|---|---|---|\n")
describe("p < .05, zero inside the interval", which(significant & !without_zero))
describe("p >= .05, zero outside the interval", which(!significant & without_zero))

# The same count with the exact p, and with the exact 2.5% point in place of 1.96.
exact_lo <- tanh(atanh(r) - qnorm(0.975) / sqrt(N - 3))
cat(sprintf(
  "\nOf %d cases in all; with the normal distribution's exact 2.5%% point in place of 1.96: %d and %d.\n",
  length(r), sum(exact < 0.05 & exact_lo <= 0), sum(exact >= 0.05 & exact_lo > 0)
))

# If all digits of a limit are zeros, only its sign tells on which side of zero it lies.
limits <- texts(ours["lo", ], masks["lo"])
cat(sprintf(
  "\nLower limits that read \"+.000\": %d; that read \"-.000\": %d.\n",
  sum(limits == "+.000"), sum(limits == "-.000")
))

cat("\n| N | Least r by p < .05 | Least r by the interval | Difference |\n|---|---|---|---|\n")
for (n in c(4, 5, 6, 7, 11, 30, 100, 1000)) {
  point <- qt(0.975, n - 2)
  by_p <- point / sqrt(n - 2 + point^2)
  by_interval <- tanh(1.96 / sqrt(n - 3))
  cat(sprintf("| %d | %.5f | %.5f | %+.5f |\n", n, by_p, by_interval, by_interval - by_p))
}
cat(sprintf("\nAgainst R %s.%s.\n", R.version$major, R.version$minor))
