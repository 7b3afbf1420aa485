#include "user_defaults/simulated/objects.h"

#include <algorithm>
#include <thread>
#include <utility>

using namespace orvelle::simulated;

namespace {

constexpr const char* globalDomain = "NSGlobalDomain";

struct Observation {
    NSUserDefaults* defaults;
    NSObject* observer;
    std::string key;
    void* context;
};
std::vector<Observation> observations;

/// The objects that the defaults answered. They own them until the value is replaced.
std::map<std::pair<const void*, std::string>, id> answers;

NSBundle* theBundle = nil;
NSUserDefaults* theStandardDefaults = nil;
NSString* theIdentifier = nil;

const Value* find(const std::string& domain, const std::string& key) {
    const Domain& values = database().domains[domain];
    const auto value = values.find(key);
    return value != values.end() ? &value->second : nullptr;
}

const Value* effectiveValue(const std::string& domain, const std::string& key) {
    const Value* own = find(domain, key);
    return own != nullptr ? own : find(globalDomain, key);
}

void forgetAnswer(const void* defaults, const std::string& key) {
    const auto answer = answers.find({defaults, key});
    if (answer == answers.end())
        return;
    [answer->second release];
    answers.erase(answer);
}

} // namespace

@interface NSUserDefaults (Simulated)
- (id)initWithDomain:(const std::string&)domain;
- (const std::string&)domain;
@end

namespace {

/// Stores the value. Observers of the key hear of it if its value is another one now.
void store(const std::string& domain, const std::string& key, const std::optional<Value>& value) {
    const auto effective = [&]() -> std::optional<Value> {
        const Value* present = effectiveValue(domain, key);
        return present != nullptr ? std::optional(*present) : std::nullopt;
    };
    const std::optional<Value> before = effective();
    if (value)
        database().domains[domain].insert_or_assign(key, *value);
    else
        database().domains[domain].erase(key);
    if (effective() == before)
        return;
    const std::vector<Observation> heard = observations;
    for (const Observation& observation : heard) {
        if (observation.key != key || [observation.defaults domain] != domain)
            continue;
        forgetAnswer((void*)observation.defaults, key);
        NSString* const keyPath = makeName(key);
        [observation.observer observeValueForKeyPath:keyPath
                                            ofObject:observation.defaults
                                              change:nil
                                             context:observation.context];
        [keyPath release];
    }
}

} // namespace

@implementation NSBundle
+ (NSBundle*)mainBundle {
    if (theBundle == nil)
        theBundle = [[NSBundle alloc] init];
    return theBundle;
}
- (NSString*)bundleIdentifier {
    if (theIdentifier == nil && database().bundleIdentifier)
        theIdentifier = makeName(*database().bundleIdentifier);
    return theIdentifier;
}
@end

@implementation NSUserDefaults
+ (NSUserDefaults*)standardUserDefaults {
    // The domain of a program without a bundle is the name of its file.
    if (theStandardDefaults == nil)
        theStandardDefaults =
            [[NSUserDefaults alloc] initWithDomain:database().bundleIdentifier.value_or("a-file")];
    return theStandardDefaults;
}
- (id)initWithDomain:(const std::string&)domain {
    m_domain = new std::string(domain);
    return self;
}
- (id)initWithSuiteName:(NSString*)suiteName {
    const std::string name = nameOf(suiteName);
    const bool isRight = name != globalDomain && name != database().bundleIdentifier;
    database().expect(isRight, "a suite of the name of the program's own domain or the global one");
    if (isRight && database().hasSuites)
        return [self initWithDomain:name];
    m_domain = new std::string;
    [self release];
    return nil;
}
- (const std::string&)domain {
    return *static_cast<const std::string*>(m_domain);
}
- (id)objectForKey:(NSString*)key {
    const std::string name = nameOf(key);
    const Value* value = effectiveValue([self domain], name);
    id& answer = answers[{(void*)self, name}];
    if (value != nullptr && valueOf(answer) == *value)
        return answer;
    [answer release];
    answer = value != nullptr ? makeObject(*value) : nil;
    return answer;
}
- (void)setObject:(id)value forKey:(NSString*)key {
    const std::string name = nameOf(key);
    const std::optional<Value> stored = valueOf(value);
    database().expect(value == nil || stored.has_value(), "a value that no property list holds");
    forgetAnswer((void*)self, name);
    store([self domain], name, stored);
}
- (BOOL)synchronize {
    ++database().synchronizations;
    if (database().duringSynchronize)
        std::exchange(database().duringSynchronize, {})();
    return database().canSynchronize;
}
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(void*)context {
    database().expect(options == 0, "options that ask for values that nobody reads");
    observations.push_back({self, observer, nameOf(keyPath), context});
}
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath {
    const std::string name = nameOf(keyPath);
    const auto count = std::erase_if(observations, [&](const Observation& observation) {
        return observation.defaults == self && observation.observer == observer && observation.key == name;
    });
    database().expect(count == 1, "an observer that is removed and did not observe");
}
- (void)dealloc {
    database().expect(
        std::ranges::none_of(observations, [self](const Observation& each) { return each.defaults == self; }),
        "defaults that end while they are observed");
    std::vector<std::string> keys;
    for (const auto& [place, object] : answers) {
        if (place.first == (void*)self)
            keys.push_back(place.second);
    }
    for (const std::string& key : keys)
        forgetAnswer((void*)self, key);
    delete static_cast<std::string*>(m_domain);
    [super dealloc];
}
@end

namespace orvelle::simulated {

void Database::expect(bool isTrue, const std::string& otherwise) {
    if (!isTrue)
        complaints.push_back(otherwise);
}

Database& database() {
    static Database theDatabase;
    return theDatabase;
}

void endProcess() {
    forgetWaitingCalls();
    database().expect(observations.empty(), "an observer that was not removed");
    observations.clear();
    [std::exchange(theIdentifier, nil) release];
    [std::exchange(theStandardDefaults, nil) release];
    [std::exchange(theBundle, nil) release];
}

void startAfresh() {
    endProcess();
    database() = Database{};
}

void storeElsewhere(const std::string& domain, const std::string& key, const std::optional<Value>& value) {
    std::thread([&] { store(domain, key, value); }).join();
}

} // namespace orvelle::simulated
