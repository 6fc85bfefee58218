#import <Foundation/Foundation.h>

@interface Forecast : NSObject

@property (assign, nonatomic) int beaufort;

- (NSString *)summary;
- (NSString *)speedText:(double)knots;

@end
