let anchor = String(localized: "Anchor")
let quay = String(localized: "Quay", comment: "Where it lies")
let boats = String(localized: "\(count) boats")
