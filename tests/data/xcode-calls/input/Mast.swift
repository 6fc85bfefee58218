let a = NSLocalizedString("Raise", tableName: "Crew", comment: "Order")
let b = String(localized: "Reef", defaultValue: "Take a reef", comment: "Order")
let c = NSLocalizedString("\(count) sails", comment: "")
let d = Bundle.main.localizedString(forKey: "Lower", value: nil, table: nil)
